# What both Windows toolchains share. The threads are POSIX ones: the standard library lacks std::mutex otherwise.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_C_COMPILER ${LUMTEX_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${LUMTEX_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${LUMTEX_MINGW_TRIPLET}-windres)
set(LUMTEX_WIDL ${LUMTEX_MINGW_TRIPLET}-widl)
# Nothing of the machine that builds may be found in place of its Windows counterpart.
set(CMAKE_FIND_ROOT_PATH /usr/${LUMTEX_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
# The compiler's own libraries go inside, so that what is built depends on the system's DLLs alone.
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
