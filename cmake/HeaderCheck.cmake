# A header is complete when a source file that holds nothing but its #include compiles.
include_guard(GLOBAL)

# orvane_check_headers(name DIRECTORIES directory...)
# An object library, not part of the default build, that compiles every header below the
# directories (relative to the repository's root) alone. Finding no header is an error.
function(orvane_check_headers name)
  cmake_parse_arguments(ARG "" "" "DIRECTORIES" ${ARGN})
  set(patterns ${ARG_DIRECTORIES})
  list(TRANSFORM patterns PREPEND "${ORVANE_ROOT}/")
  list(TRANSFORM patterns APPEND "/*.h")
  file(GLOB_RECURSE headers RELATIVE "${ORVANE_ROOT}" CONFIGURE_DEPENDS ${patterns})
  if(NOT headers)
    message(FATAL_ERROR "No header found below ${ARG_DIRECTORIES}")
  endif()

  set(sources)
  foreach(header IN LISTS headers)
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${name}/${header}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"@header@\"\n" @ONLY)
    list(APPEND sources "${source}")
  endforeach()
  add_library(${name} OBJECT EXCLUDE_FROM_ALL ${sources})
  orvane_apply_settings(${name})
endfunction()
