# Builds 32-bit Windows programs; their tests run where Wine has its 32-bit part. Floating point by SSE, as everywhere
# else: the 387 rounds coordinates its own way. Callers of the component keep the stack aligned to 4 bytes only.
set(LUMTEX_MINGW_TRIPLET i686-w64-mingw32)
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
set(CMAKE_CXX_FLAGS_INIT "-msse2 -mfpmath=sse -mstackrealign")
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/wine-run")
