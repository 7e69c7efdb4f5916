# Chooses GCC, in the version the project is built with where several are installed.
if(NOT CMAKE_CXX_COMPILER)
    find_program(LUMTEX_GCC NAMES g++-12 g++ REQUIRED)
    set(CMAKE_CXX_COMPILER "${LUMTEX_GCC}")
endif()
