# Every header compiles alone: the target `headers` compiles one file per header, which includes nothing else.
# Private headers count too, therefore this stands in for CMAKE_VERIFY_INTERFACE_HEADER_SETS.
# A project that adds this folder may have a target of that name itself, and no use for ours.
if(PROJECT_IS_TOP_LEVEL)
    add_custom_target(headers COMMENT "Every header compiles alone")
endif()

# lumtex_headers_alone(<room> <header>...): headers relative to the current folder, and to the include path.
function(lumtex_headers_alone room)
    if(NOT ARGN OR NOT TARGET headers)
        return()
    endif()
    set(sources "")
    foreach(header IN LISTS ARGN)
        string(REPLACE "/" "__" name "${header}")
        set(source "${CMAKE_CURRENT_BINARY_DIR}/headers/${name}.cpp")
        # Twice, so that a header without its guard is found out.
        file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"@header@\"\n#include \"@header@\"\n" @ONLY)
        list(APPEND sources "${source}")
    endforeach()
    add_library(${room}_headers OBJECT EXCLUDE_FROM_ALL ${sources})
    set_target_properties(${room}_headers PROPERTIES UNITY_BUILD OFF)
    target_link_libraries(${room}_headers PRIVATE lumtex_flags ${room})
    get_target_property(libraries ${room} LINK_LIBRARIES)
    if(libraries)
        target_link_libraries(${room}_headers PRIVATE ${libraries})
    endif()
    add_dependencies(headers ${room}_headers)
endfunction()
