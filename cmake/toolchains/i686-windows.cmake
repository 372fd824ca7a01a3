# Windows in 32 bits, the word size of the devices.
set(KORVANE_WINDOWS_ARCH i686)
# The old floating-point unit would round to more digits than all other builds do. The system calls back with a
# stack aligned to 4 bytes, where SSE needs 16.
set(KORVANE_WINDOWS_FLAGS "-msse2 -mfpmath=sse -mstackrealign -Wa,-muse-unaligned-vector-move")
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
