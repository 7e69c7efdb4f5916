# The component Qt: the widget in a shared library, which needs no other component. Everything below the widget is in it and
# hidden, so that a program may link the static components besides.

# lumtex_qt_library(ROOMS <room>... MODULES <pkg-config module>... HEADERS <pattern>...)
function(lumtex_qt_library)
    cmake_parse_arguments(PART "" "" "ROOMS;MODULES;HEADERS" ${ARGN})
    list(TRANSFORM PART_ROOMS REPLACE "(.+)" "$<TARGET_OBJECTS:lumtex_\\1>" OUTPUT_VARIABLE objects)
    lumtex_module_targets(modules ${PART_MODULES})
    set(exports "${PROJECT_SOURCE_DIR}/src/qt/exports.map")

    add_library(lumtex_component_qt SHARED ${objects})
    add_library(LumtexListView::Qt ALIAS lumtex_component_qt)
    # Before 1.0 a middle number may change the interface.
    set_target_properties(
        lumtex_component_qt
        PROPERTIES LINKER_LANGUAGE CXX
                   OUTPUT_NAME lumtexlistview-qt6
                   EXPORT_NAME Qt
                   VERSION ${PROJECT_VERSION}
                   SOVERSION ${PROJECT_VERSION_MAJOR}.${PROJECT_VERSION_MINOR}
                   LINK_DEPENDS "${exports}")
    target_compile_features(lumtex_component_qt INTERFACE cxx_std_20)
    target_include_directories(
        lumtex_component_qt
        INTERFACE "$<BUILD_INTERFACE:$<TARGET_PROPERTY:lumtex_use,INTERFACE_INCLUDE_DIRECTORIES>>"
                  "$<INSTALL_INTERFACE:${LUMTEX_HEADER_FOLDER}>")
    target_link_libraries(lumtex_component_qt PUBLIC Qt6::Widgets PRIVATE ${modules})
    target_link_options(lumtex_component_qt PRIVATE "LINKER:--version-script=${exports}")

    if(NOT LUMTEX_INSTALL)
        set_target_properties(lumtex_component_qt PROPERTIES EXCLUDE_FROM_ALL ON)
        return()
    endif()
    install(
        TARGETS lumtex_component_qt EXPORT LumtexListViewQt
        LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT Qt NAMELINK_COMPONENT Development)
    lumtex_publish_component(Qt "The list view as a widget of Qt 6" "" "" "${PART_HEADERS}" lumtexlistview-qt6 Qt6Widgets)
endfunction()
