# What a program needs that uses the rooms, and below, what the rooms and our own programs compile with besides. A room
# links the second privately: our warnings are no business of a user's code.
set(LUMTEX_SANITIZE
    ""
    CACHE STRING "Sanitizers to build with, as -fsanitize takes them; empty for none")

option(LUMTEX_COVERAGE "Count which lines of the rooms run" OFF)

set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

add_library(lumtex_use INTERFACE)
target_compile_features(lumtex_use INTERFACE cxx_std_20)
target_include_directories(lumtex_use INTERFACE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_BINARY_DIR}/generated")

add_library(lumtex_flags INTERFACE)
target_link_libraries(lumtex_flags INTERFACE lumtex_use)
# Contracted multiply-adds would make coordinates differ from one processor to the next.
target_compile_options(
    lumtex_flags
    INTERFACE -Wall
              -Wextra
              -Wpedantic
              -Wshadow
              -Wnon-virtual-dtor
              -Woverloaded-virtual
              -Wimplicit-fallthrough
              $<$<BOOL:${LUMTEX_STRICT}>:-Werror>
              -ffp-contract=off)
# Optimising, GCC 12 takes the joining of UTF-16 strings for copies that overlap or pass an end.
if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU" AND CMAKE_CXX_COMPILER_VERSION VERSION_LESS 13)
    target_compile_options(lumtex_flags INTERFACE -Wno-restrict -Wno-array-bounds -Wno-stringop-overflow)
endif()
# Interfaces of the component model have no virtual destructors: their objects destroy themselves.
if(WIN32)
    target_compile_options(lumtex_flags INTERFACE -Wno-non-virtual-dtor)
endif()
# No object depends on where the tree lies, so that compilers' caches are shared between clones.
target_compile_options(lumtex_flags INTERFACE "-ffile-prefix-map=${PROJECT_SOURCE_DIR}=.")
# An index out of range stops a debug build instead of reading on.
target_compile_definitions(lumtex_flags INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(LUMTEX_SANITIZE)
    # Unoptimised, the sanitized tests take several times as long; frame pointers keep the reports readable.
    target_compile_options(lumtex_flags INTERFACE -fsanitize=${LUMTEX_SANITIZE} -fno-sanitize-recover=all
                                                  -fno-omit-frame-pointer -O1 -g1)
    target_link_options(lumtex_flags INTERFACE -fsanitize=${LUMTEX_SANITIZE})
    # Every program carries its sanitizer settings, so that none has to be started in a special environment.
    target_sources(lumtex_flags INTERFACE
        "$<$<STREQUAL:$<TARGET_PROPERTY:TYPE>,EXECUTABLE>:${CMAKE_CURRENT_LIST_DIR}/sanitizer_defaults.cpp>")
endif()

# The rooms themselves count; a test that has run is no news.
if(LUMTEX_COVERAGE)
    target_link_options(lumtex_flags INTERFACE --coverage)
endif()
function(lumtex_counted room)
    if(LUMTEX_COVERAGE)
        target_compile_options(${room} PRIVATE --coverage)
    endif()
endfunction()

# What ccache asks of a compiler before it keeps files that use a precompiled header.
target_compile_options(
    lumtex_flags INTERFACE "$<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>"
                           "$<$<CXX_COMPILER_ID:Clang>:SHELL:-Xclang -fno-pch-timestamp>")
