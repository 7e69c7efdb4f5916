# What consumers link: rooms joined into one library per component, as LumtexListView::<Component>, in the tree and installed.

# Where Debian looks for libraries of one architecture, under any prefix: one build serves a prefix and a package.
if(PROJECT_IS_TOP_LEVEL AND NOT DEFINED CMAKE_INSTALL_LIBDIR AND EXISTS /etc/debian_version
   AND CMAKE_LIBRARY_ARCHITECTURE)
    set(CMAKE_INSTALL_LIBDIR "lib/${CMAKE_LIBRARY_ARCHITECTURE}" CACHE PATH "Libraries, below the prefix")
endif()
include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

# Nothing that is installed knows its place: the tree may be moved.
foreach(folder LIBDIR INCLUDEDIR)
    if(LUMTEX_INSTALL AND IS_ABSOLUTE "${CMAKE_INSTALL_${folder}}")
        message(FATAL_ERROR "CMAKE_INSTALL_${folder} must be relative to the prefix, not ${CMAKE_INSTALL_${folder}}")
    endif()
endforeach()
set(LUMTEX_PACKAGE_FOLDER "${CMAKE_INSTALL_LIBDIR}/cmake/LumtexListView")
set(LUMTEX_HEADER_FOLDER "${CMAKE_INSTALL_INCLUDEDIR}/lumtexlistview")

# lumtex_component(<Component> ABOUT <line> ROOMS <room>... [NEEDS <Component>...] [MODULES <pkg-config module>...]
#                  HEADERS <pattern>...)
# NEEDS names every component that this one stands on, not only the next one, from the ground up. HEADERS are what consumers
# include, below src; headers that those include are installed with them.
function(lumtex_component component)
    cmake_parse_arguments(PART "" "ABOUT" "ROOMS;NEEDS;MODULES;HEADERS" ${ARGN})
    string(TOLOWER ${component} name)
    set(target lumtex_component_${name})
    list(TRANSFORM PART_ROOMS REPLACE "(.+)" "$<TARGET_OBJECTS:lumtex_\\1>" OUTPUT_VARIABLE objects)
    list(TRANSFORM PART_NEEDS PREPEND LumtexListView:: OUTPUT_VARIABLE needs)
    lumtex_module_targets(modules ${PART_MODULES})

    add_library(${target} STATIC ${objects})
    add_library(LumtexListView::${component} ALIAS ${target})
    set_target_properties(${target} PROPERTIES LINKER_LANGUAGE CXX OUTPUT_NAME lumtexlistview-${name}
                                               EXPORT_NAME ${component})
    target_compile_features(${target} INTERFACE cxx_std_20)
    target_include_directories(
        ${target} INTERFACE "$<BUILD_INTERFACE:$<TARGET_PROPERTY:lumtex_use,INTERFACE_INCLUDE_DIRECTORIES>>"
                            "$<INSTALL_INTERFACE:${LUMTEX_HEADER_FOLDER}>")
    target_link_libraries(${target} INTERFACE ${needs} PRIVATE ${modules})

    if(NOT LUMTEX_INSTALL)
        set_target_properties(${target} PROPERTIES EXCLUDE_FROM_ALL ON)
        return()
    endif()
    install(TARGETS ${target} EXPORT LumtexListView${component}
            ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Development)
    # Static libraries: whoever links one needs all that it needs, with or without pkg-config's --static.
    list(TRANSFORM PART_NEEDS TOLOWER OUTPUT_VARIABLE required)
    list(TRANSFORM required PREPEND lumtexlistview-)
    lumtex_publish_component(${component} "${PART_ABOUT}" "${PART_NEEDS}" "${PART_MODULES}" "${PART_HEADERS}"
                             lumtexlistview-${name} ${required} ${PART_MODULES})
endfunction()

# lumtex_publish_component(<Component> <about> <needs> <modules> <headers> <library> [<required by pkg-config>...]): what
# consumers find a library by, once its target is to be installed.
function(lumtex_publish_component component about needs modules headers library)
    install(EXPORT LumtexListView${component} FILE LumtexListView${component}Targets.cmake NAMESPACE LumtexListView::
            DESTINATION "${LUMTEX_PACKAGE_FOLDER}" COMPONENT Development)
    lumtex_pkg_config(${library} "${about}" ${ARGN})
    set_property(GLOBAL APPEND PROPERTY LUMTEX_COMPONENTS ${component})
    set_property(GLOBAL APPEND PROPERTY LUMTEX_PUBLIC_HEADERS ${headers})
    set_property(GLOBAL APPEND_STRING PROPERTY LUMTEX_COMPONENT_NEEDS
                 "set(lumtex_needs_${component} ${needs})\nset(lumtex_modules_${component} ${modules})\n")
endfunction()

function(lumtex_pkg_config library about)
    list(JOIN ARGN " " requires)
    # From the file itself to the prefix, so that the tree can be moved.
    set(pc_folder "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
    file(RELATIVE_PATH up "/${pc_folder}" "/")
    set(pc_file "${PROJECT_BINARY_DIR}/package/${library}.pc")
    configure_file("${PROJECT_SOURCE_DIR}/packaging/component.pc.in" "${pc_file}" @ONLY)
    install(FILES "${pc_file}" DESTINATION "${pc_folder}" COMPONENT Development)
endfunction()

# Installs the headers and the package's own files, once all components are known.
function(lumtex_install_package)
    get_property(components GLOBAL PROPERTY LUMTEX_COMPONENTS)
    get_property(component_needs GLOBAL PROPERTY LUMTEX_COMPONENT_NEEDS)
    get_property(patterns GLOBAL PROPERTY LUMTEX_PUBLIC_HEADERS)
    set(folder "${PROJECT_BINARY_DIR}/package")
    configure_package_config_file(
        "${PROJECT_SOURCE_DIR}/packaging/LumtexListViewConfig.cmake.in" "${folder}/LumtexListViewConfig.cmake"
        INSTALL_DESTINATION "${LUMTEX_PACKAGE_FOLDER}")
    # Before 1.0 a middle number may change the interface.
    write_basic_package_version_file("${folder}/LumtexListViewConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
    install(FILES "${folder}/LumtexListViewConfig.cmake" "${folder}/LumtexListViewConfigVersion.cmake"
                  "${PROJECT_SOURCE_DIR}/cmake/LumtexModules.cmake"
            DESTINATION "${LUMTEX_PACKAGE_FOLDER}" COMPONENT Development)
    configure_file("${PROJECT_SOURCE_DIR}/cmake/install_headers.cmake.in" "${folder}/install_headers.cmake" @ONLY)
    install(SCRIPT "${folder}/install_headers.cmake" COMPONENT Development)
endfunction()
