# Cross-building for 64-bit Windows with Debian's MinGW-w64 with the POSIX thread model.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)

# What is made needs no library of the compiler's.
foreach(kind EXE SHARED MODULE)
  set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
endforeach()

# This system's headers and libraries are not Windows'; its programs run here.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# What runs the programs that are made.
find_program(ORVANE_WINE wine64 PATHS /usr/lib/wine)
if(ORVANE_WINE)
  set(CMAKE_CROSSCOMPILING_EMULATOR "${ORVANE_WINE}" CACHE STRING "Runs programs made for Windows")
endif()
