# The component: LumtexListView.ocx, from the sources of this folder and its generated type library.
enable_language(RC)

set(type_library "${CMAKE_CURRENT_BINARY_DIR}/lumtex_list_view.tlb")
set(activex_folder "${CMAKE_CURRENT_SOURCE_DIR}/activex")
math(EXPR pointer_bits "${CMAKE_SIZEOF_VOID_P} * 8")
find_file(
    LUMTEX_STDOLE2 stdole2.tlb
    PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows
    NO_CMAKE_FIND_ROOT_PATH REQUIRED)
get_filename_component(stdole2_folder "${LUMTEX_STDOLE2}" DIRECTORY)
# The compiler writes the moment of its run into the library, and knows no way to leave it out.
find_program(LUMTEX_FAKETIME faketime REQUIRED)
add_custom_command(
    OUTPUT "${type_library}"
    COMMAND "${CMAKE_COMMAND}" -E env TZ=UTC "${LUMTEX_FAKETIME}" -f "2026-01-01 00:00:00"
            ${LUMTEX_WIDL} -m${pointer_bits} -I "${activex_folder}" -L "${stdole2_folder}" -t -o "${type_library}"
            "${activex_folder}/lumtex_list_view.idl"
    # The compiler refuses a text as the default of a by-reference parameter. Where it wrote the mark instead, stand
    # eight bytes: the kind, the length or mark, and fill.
    COMMAND "${CMAKE_COMMAND}" -E env LC_ALL=C sed -i
            "s/\\x08\\x00AABGWW/\\x08\\x00\\x01\\x00\\x00\\x00*W/g" "${type_library}"
    DEPENDS "${activex_folder}/lumtex_list_view.idl" "${activex_folder}/base_types.idl"
    COMMENT "Type library"
    VERBATIM)

configure_file(activex/component.rc.in "${CMAKE_CURRENT_BINARY_DIR}/component.rc" @ONLY)
set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/component.rc"
                            PROPERTIES OBJECT_DEPENDS "${type_library};${activex_folder}/toolbox.bmp")

file(GLOB activex_sources CONFIGURE_DEPENDS activex/*.cpp)
file(GLOB activex_headers CONFIGURE_DEPENDS RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}" activex/*.h)
lumtex_layer(activex folders below)
add_library(LumtexListView SHARED ${activex_sources} activex/lumtex_list_view.def
                                  "${CMAKE_CURRENT_BINARY_DIR}/component.rc" "${type_library}")
set_target_properties(LumtexListView PROPERTIES PREFIX "" SUFFIX ".ocx")
target_link_libraries(LumtexListView PRIVATE lumtex_flags ${below} oleacc)
# Without the moment of its making in it, so that the same sources give the same file.
target_link_options(LumtexListView PRIVATE -Wl,--enable-stdcall-fixup -Wl,--no-insert-timestamp)
target_precompile_headers(LumtexListView REUSE_FROM lumtex_precompiled)
lumtex_headers_alone(LumtexListView ${activex_headers})
# Programs find the component by the manifest beside it, where nothing is registered.
add_custom_command(
    TARGET LumtexListView
    POST_BUILD
    COMMAND "${CMAKE_COMMAND}" -E copy_if_different "${activex_folder}/LumtexListView.manifest"
            "$<TARGET_FILE_DIR:LumtexListView>")
