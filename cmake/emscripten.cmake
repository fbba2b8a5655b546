# Cross-building for WebAssembly with Debian's Emscripten; Node runs the programs that are made.

# Emscripten reads what its compiler makes as a URL where Node has fetch.
find_program(ORVANE_NODE node NO_CMAKE_FIND_ROOT_PATH)
set(CMAKE_CROSSCOMPILING_EMULATOR "${ORVANE_NODE};--no-experimental-fetch"
    CACHE STRING "Runs programs made for WebAssembly")

include(/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake)

# Exceptions that WebAssembly itself throws and catches: those by way of JavaScript make a program half
# as large again, and each call that one might leave a slow one. At linking they choose the libraries.
set(CMAKE_C_FLAGS_INIT "-fwasm-exceptions")
set(CMAKE_CXX_FLAGS_INIT "-fwasm-exceptions")
set(CMAKE_EXE_LINKER_FLAGS_INIT "-fwasm-exceptions -sALLOW_MEMORY_GROWTH=1")

# Where Debian keeps the libraries of Node that the linker's own scripts use.
set(CMAKE_CXX_LINKER_LAUNCHER "${CMAKE_COMMAND}" -E env NODE_PATH=/usr/share/nodejs)
