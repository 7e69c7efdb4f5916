# The test programs of the Windows build. Debian has GoogleTest for Windows as sources alone.
add_subdirectory(/usr/src/googletest "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL)

# The one library that knows where the tree lies. Wine shows the whole file system under Z:.
add_library(lumtex_test_folders STATIC support/folders.cpp)
target_link_libraries(lumtex_test_folders PRIVATE lumtex_flags)
target_compile_definitions(lumtex_test_folders PRIVATE LUMTEX_SOURCE_FOLDER="Z:${PROJECT_SOURCE_DIR}")

add_library(lumtex_test_base INTERFACE)
target_link_libraries(lumtex_test_base INTERFACE lumtex_flags lumtex_test_folders gmock)
target_compile_options(lumtex_test_base INTERFACE -O1)
target_include_directories(lumtex_test_base INTERFACE "${CMAKE_CURRENT_SOURCE_DIR}/support"
                                                      "${CMAKE_CURRENT_SOURCE_DIR}")

# The software surface and the simulated desktop, to hold the surface of Windows against them. Doubles in windows/
# stand in for the libraries of fonts and pictures.
set(rooms "${PROJECT_SOURCE_DIR}/src")
file(GLOB desktop_sources CONFIGURE_DEPENDS ${rooms}/worlds/headless/*.cpp)
add_library(
    lumtex_test_raster STATIC
    ${rooms}/raster/raster_surface.cpp ${rooms}/raster/blend.cpp ${rooms}/raster/fill.cpp
    ${rooms}/raster/line.cpp ${rooms}/raster/painted_parts.cpp ${rooms}/raster/polygon.cpp
    ${rooms}/raster/text_painter.cpp
    ${desktop_sources} support/pixels.cpp windows/gdi_typefaces.cpp windows/picture_doubles.cpp)
target_link_libraries(lumtex_test_raster PUBLIC lumtex_test_base lumtex_win32)

# One program per folder: `lumtex_test_<last part of its path>`, run by ctest through Wine, one after another: there is one mouse, one
# keyboard, and one window in front. One that is ALONE has a display and a prefix of its own beside the others.
function(lumtex_tests path)
    cmake_parse_arguments(TESTS "ALONE" "" "LINK" ${ARGN})
    file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${path}/*.cpp)
    get_filename_component(folder ${path} NAME)
    if(NOT sources)
        return()
    endif()
    set(name lumtex_test_${folder})
    add_executable(${name} ${sources})
    target_link_libraries(${name} PRIVATE ${TESTS_LINK} lumtex_test_base gtest_main)
    if(TESTS_ALONE)
        set(scripts "${PROJECT_SOURCE_DIR}/scripts")
        add_test(NAME ${folder}
                 COMMAND "${CMAKE_COMMAND}" -E env "LUMTEX_WINE_PREFIX=${PROJECT_BINARY_DIR}/wine-prefix"
                         "${scripts}/on-display" "${scripts}/wine-run" $<TARGET_FILE:${name}>)
    else()
        add_test(NAME ${folder} COMMAND ${name})
        set_tests_properties(${folder} PROPERTIES RESOURCE_LOCK display)
    endif()
    set_property(GLOBAL APPEND PROPERTY LUMTEX_TEST_PROGRAMS ${name})
endfunction()

# The conversions are the same everywhere, and the compiler's library is another one.
lumtex_tests(values LINK lumtex_values)
lumtex_tests(platform LINK lumtex_platform)
lumtex_tests(worlds/win32 LINK lumtex_control lumtex_test_raster lumtex_win32)
target_sources(lumtex_test_win32 PRIVATE scripts/script_host.cpp)
lumtex_tests(mirrored LINK lumtex_automation lumtex_test_raster lumtex_win32)
target_sources(lumtex_test_mirrored PRIVATE scenarios/headless_stage.cpp scenarios/player.cpp scenarios/script.cpp)
lumtex_tests(stage LINK lumtex_automation lumtex_test_raster lumtex_win32)
target_sources(lumtex_test_stage PRIVATE scenarios/headless_stage.cpp scenarios/player.cpp scenarios/script.cpp)
# It starts programs on a screen that it changes for all.
lumtex_tests(density LINK lumtex_control lumtex_test_raster lumtex_win32)
lumtex_tests(activex LINK lumtex_automation lumtex_win32)
add_dependencies(lumtex_test_activex LumtexListView)
# Who listens is another program, as it is for users.
add_executable(screen_reader windows/screen_reader/main.cpp)
target_link_libraries(screen_reader PRIVATE lumtex_flags oleacc ole32 oleaut32 uuid)
lumtex_tests(spoken LINK lumtex_automation lumtex_win32 oleacc)
add_dependencies(lumtex_test_spoken LumtexListView screen_reader)
# The elements of UI Automation, and in place of the system's library one that notes what it is told.
lumtex_tests(uia LINK lumtex_accessibility lumtex_test_raster lumtex_win32 oleacc)
target_sources(
    lumtex_test_uia
    PRIVATE ${rooms}/activex/com_guard.cpp ${rooms}/activex/spoken_element.cpp ${rooms}/activex/spoken_list.cpp
            ${rooms}/activex/uia_acts.cpp ${rooms}/activex/uia_element.cpp ${rooms}/activex/uia_events.cpp
            ${rooms}/activex/uia_library.cpp ${rooms}/activex/uia_properties.cpp ${rooms}/activex/uia_scroll.cpp
            ${rooms}/activex/uia_table.cpp)
# Scripts find the component through the program's manifest.
enable_language(RC)
lumtex_tests(scripts LINK lumtex_automation lumtex_win32)
target_sources(lumtex_test_scripts PRIVATE scripts/scripts.rc)
target_include_directories(lumtex_test_scripts PRIVATE "${PROJECT_SOURCE_DIR}/include")
set_source_files_properties(scripts/scripts.rc PROPERTIES OBJECT_DEPENDS
                                                          "${CMAKE_CURRENT_SOURCE_DIR}/scripts/scripts.manifest")
add_dependencies(lumtex_test_scripts LumtexListView)
# What hosts in C++ include.
lumtex_tests(host_wrapper LINK lumtex_automation lumtex_win32)
target_include_directories(lumtex_test_host_wrapper PRIVATE "${PROJECT_SOURCE_DIR}/include")
target_sources(lumtex_test_host_wrapper PRIVATE scripts/scripts.rc)
add_dependencies(lumtex_test_host_wrapper LumtexListView)
lumtex_tests(samples LINK lumtex_test_raster lumtex_win32)
target_sources(lumtex_test_samples PRIVATE stage/user_input.cpp)
add_dependencies(lumtex_test_samples LumtexListView samples)
lumtex_tests(hosting LINK lumtex_test_raster lumtex_win32)
target_sources(lumtex_test_hosting PRIVATE stage/user_input.cpp)
add_dependencies(lumtex_test_hosting LumtexListView)
lumtex_tests(story LINK lumtex_test_raster lumtex_win32 windowscodecs)
target_sources(lumtex_test_story PRIVATE stage/user_input.cpp)
add_dependencies(lumtex_test_story LumtexListView)
lumtex_tests(lifetime ALONE LINK lumtex_automation lumtex_win32)
add_dependencies(lumtex_test_lifetime LumtexListView)
# It takes longest, so it starts first. The time is for machines that do other things, too.
set_tests_properties(lifetime PROPERTIES COST 1000 TIMEOUT 1500)
add_test(NAME component COMMAND "${PROJECT_SOURCE_DIR}/scripts/check-component" $<TARGET_FILE:LumtexListView>)

get_property(programs GLOBAL PROPERTY LUMTEX_TEST_PROGRAMS)
list(JOIN programs "\n" programs)
file(CONFIGURE OUTPUT programs.txt CONTENT "@programs@\n" @ONLY)
