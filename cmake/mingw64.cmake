set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(TARNWICK_WINE "${CMAKE_CURRENT_LIST_DIR}/../tools/wine64")
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
# GCC moves 32-byte vectors to a stack that 64-bit Windows aligns to 16 bytes only
# (its bug 54412); the assembler can make those moves harmless.
set(CMAKE_CXX_FLAGS_INIT "-Wa,-muse-unaligned-vector-move")
