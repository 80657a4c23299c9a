# The MinGW-w64 cross compiler for `triple`. The win32 variant uses Windows' own threads, so no thread library is
# needed.
set(CMAKE_SYSTEM_NAME Windows)
string(REGEX REPLACE "-.*" "" CMAKE_SYSTEM_PROCESSOR ${triple})
set(CMAKE_C_COMPILER ${triple}-gcc-win32)
set(CMAKE_CXX_COMPILER ${triple}-g++-win32)
set(CMAKE_AR ${triple}-gcc-ar-win32)
set(CMAKE_RANLIB ${triple}-gcc-ranlib-win32)
set(CMAKE_RC_COMPILER ${triple}-windres)
set(CMAKE_FIND_ROOT_PATH /usr/${triple})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
