# Everything compiles with the flags of this one interface target.
add_library(lumtex_flags INTERFACE)
target_compile_features(lumtex_flags INTERFACE cxx_std_20)
target_include_directories(lumtex_flags INTERFACE "${PROJECT_SOURCE_DIR}/src" "${PROJECT_BINARY_DIR}/generated")
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
              -Werror
              -ffp-contract=off)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
