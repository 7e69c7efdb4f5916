# Chooses Clang, in the version the project is built with where several are installed.
if(NOT CMAKE_CXX_COMPILER)
    find_program(LUMTEX_CLANG NAMES clang++-14 clang++ REQUIRED)
    set(CMAKE_CXX_COMPILER "${LUMTEX_CLANG}")
endif()
