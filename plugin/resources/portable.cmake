# Where the system knows no resources they are embedded as one block of bytes.
find_program(ORVANE_WINDRES x86_64-w64-mingw32-windres REQUIRED)

set(resource_file "${CMAKE_CURRENT_BINARY_DIR}/OrvaneFileIO.res")
add_custom_command(
  OUTPUT "${resource_file}"
  COMMAND "${ORVANE_WINDRES}" --preprocessor "${CMAKE_C_COMPILER}"
          --preprocessor-arg=-E --preprocessor-arg=-xc --preprocessor-arg=-DRC_INVOKED
          --include-dir "${CMAKE_CURRENT_SOURCE_DIR}" --include-dir "${CMAKE_CURRENT_BINARY_DIR}"
          --output-format=res OrvaneFileIO.rc "${resource_file}"
  WORKING_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}"
  DEPENDS ${resource_parts}
  VERBATIM)

configure_file(resources.S.in resources.S @ONLY)
set_source_files_properties("${CMAKE_CURRENT_BINARY_DIR}/resources.S" PROPERTIES
  OBJECT_DEPENDS "${resource_file}")

# Provides orvane_resources_begin and orvane_resources_end.
add_library(orvane_resources STATIC "${CMAKE_CURRENT_BINARY_DIR}/resources.S" "${resource_file}")
