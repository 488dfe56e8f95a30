# The cross tool chain of the module: 32-bit Windows, the run-time linked in. The host's stack may lie at any
# multiple of four. What decides numbers is in Numbers.cmake. Nothing newer than Windows 7 is asked of the system.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_COMPILER i686-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER i686-w64-mingw32-windres)
set(CMAKE_CXX_FLAGS_INIT "-mstackrealign -D_WIN32_WINNT=0x0601")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
