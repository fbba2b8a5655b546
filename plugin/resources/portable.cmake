# Where the system knows no resources they are embedded as one block of bytes.
find_program(ORVANE_WINDRES x86_64-w64-mingw32-windres NO_CMAKE_FIND_ROOT_PATH REQUIRED)
if(EMSCRIPTEN)
  find_program(ORVANE_PREPROCESSOR NAMES gcc cc NO_CMAKE_FIND_ROOT_PATH REQUIRED)
else()
  set(ORVANE_PREPROCESSOR "${CMAKE_C_COMPILER}")
endif()

set(resource_file "${CMAKE_CURRENT_BINARY_DIR}/OrvaneFileIO.res")
add_custom_command(
  OUTPUT "${resource_file}"
  COMMAND "${ORVANE_WINDRES}" --preprocessor "${ORVANE_PREPROCESSOR}"
          --preprocessor-arg=-E --preprocessor-arg=-xc --preprocessor-arg=-DRC_INVOKED
          --include-dir "${CMAKE_CURRENT_SOURCE_DIR}" --include-dir "${CMAKE_CURRENT_BINARY_DIR}"
          --output-format=res OrvaneFileIO.rc "${resource_file}"
  WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
  DEPENDS ${resource_parts}
  VERBATIM)

set(resource_source "${CMAKE_CURRENT_BINARY_DIR}/resources.c")
add_custom_command(
  OUTPUT "${resource_source}"
  COMMAND "${CMAKE_COMMAND}" -D "INPUT=${resource_file}" -D "OUTPUT=${resource_source}"
          -P "${CMAKE_CURRENT_SOURCE_DIR}/bytes_to_c.cmake"
  DEPENDS "${resource_file}" bytes_to_c.cmake
  VERBATIM)

# Provides orvane_resources and orvane_resources_size.
add_library(orvane_resources STATIC "${resource_source}")
set_target_properties(orvane_resources PROPERTIES POSITION_INDEPENDENT_CODE ON C_STANDARD 11)
