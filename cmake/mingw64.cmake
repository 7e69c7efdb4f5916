# Builds 64-bit Windows programs. Their tests run under Wine.
set(LUMTEX_MINGW_TRIPLET x86_64-w64-mingw32)
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/wine-run")
