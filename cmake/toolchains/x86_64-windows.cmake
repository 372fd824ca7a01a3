# Windows on a 64-bit PC.
set(KORVANE_WINDOWS_ARCH x86_64)
# GCC spills vectors of 32 bytes with aligned moves to a stack that this system aligns to 16 only.
set(KORVANE_WINDOWS_FLAGS "-Wa,-muse-unaligned-vector-move")
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
