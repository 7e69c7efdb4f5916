# The component Designer: a plugin that shows the widget in Qt's form editor, and makes it for programs that load forms.

# Where Qt looks for plugins, below its prefix.
function(lumtex_qt_plugins variable)
    get_target_property(qmake Qt6::qmake IMPORTED_LOCATION)
    foreach(place INSTALL_PLUGINS INSTALL_PREFIX)
        execute_process(COMMAND "${qmake}" -query QT_${place} OUTPUT_VARIABLE ${place} OUTPUT_STRIP_TRAILING_WHITESPACE
                        COMMAND_ERROR_IS_FATAL ANY)
    endforeach()
    file(RELATIVE_PATH folder "${INSTALL_PREFIX}" "${INSTALL_PLUGINS}")
    set(${variable} "${folder}" PARENT_SCOPE)
endfunction()

function(lumtex_designer_plugin)
    add_library(lumtex_component_designer MODULE $<TARGET_OBJECTS:lumtex_designer> $<TARGET_OBJECTS:lumtex_words>)
    set_target_properties(
        lumtex_component_designer
        PROPERTIES LINKER_LANGUAGE CXX
                   OUTPUT_NAME LumtexListViewDesigner
                   # Qt looks into folders of that name.
                   LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/designer")
    target_link_libraries(lumtex_component_designer PRIVATE LumtexListView::Qt Qt6::Designer)

    if(NOT LUMTEX_INSTALL)
        set_target_properties(lumtex_component_designer PROPERTIES EXCLUDE_FROM_ALL ON)
        return()
    endif()
    lumtex_qt_plugins(plugins)
    # From the plugin to the library, so that the tree can be moved.
    file(RELATIVE_PATH up "/${plugins}/designer" "/${CMAKE_INSTALL_LIBDIR}")
    set_target_properties(lumtex_component_designer PROPERTIES INSTALL_RPATH "$ORIGIN/${up}")
    install(TARGETS lumtex_component_designer LIBRARY DESTINATION "${plugins}/designer" COMPONENT Designer)
endfunction()
