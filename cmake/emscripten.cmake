# Cross-building for WebAssembly with Debian's Emscripten; Node runs the programs that are made.

# Emscripten reads what its compiler makes as a URL where Node has fetch.
find_program(ORVANE_NODE node NO_CMAKE_FIND_ROOT_PATH)
set(CMAKE_CROSSCOMPILING_EMULATOR "${ORVANE_NODE};--no-experimental-fetch"
    CACHE STRING "Runs programs made for WebAssembly")

include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

# Exceptions that are caught, which its libraries are not built for unless told, at linking too.
set(CMAKE_C_FLAGS_INIT "-fexceptions")
set(CMAKE_CXX_FLAGS_INIT "-fexceptions")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-fexceptions -sALLOW_MEMORY_GROWTH=1")

# Where Debian keeps the libraries of Node that the linker's own scripts use.
set(CMAKE_CXX_LINKER_LAUNCHER "${CMAKE_COMMAND}" -E env NODE_PATH=/usr/share/nodejs)
