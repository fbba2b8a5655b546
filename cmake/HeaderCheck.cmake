# A header is complete when a source file that holds nothing but its #include compiles.
include_guard(GLOBAL)

# Most headers have been compiled so before: the first that a source file beside them, of the same
# name, includes (tools/check_includes.py holds it to that). This is for the others. In tests, which
# read the test framework first, that is all of them.
#
# orvane_check_headers(name DIRECTORIES directory... [EXCLUDE regex])
# An object library, not part of the default build, that compiles alone every such header below the
# directories (relative to the repository's root) but those whose name matches the regular
# expression. Finding no header is an error.
function(orvane_check_headers name)
  cmake_parse_arguments(ARG "" "EXCLUDE" "DIRECTORIES" ${ARGN})
  set(patterns ${ARG_DIRECTORIES})
  list(TRANSFORM patterns PREPEND "${ORVANE_ROOT}/")
  list(TRANSFORM patterns APPEND "/*.h")
  file(GLOB_RECURSE headers RELATIVE "${ORVANE_ROOT}" CONFIGURE_DEPENDS ${patterns})
  if(ARG_EXCLUDE)
    list(FILTER headers EXCLUDE REGEX "${ARG_EXCLUDE}")
  endif()
  if(NOT headers)
    message(FATAL_ERROR "No header found below ${ARG_DIRECTORIES}")
  endif()

  set(sources)
  foreach(header IN LISTS headers)
    string(REGEX REPLACE "\\.h$" ".cpp" own_source "${ORVANE_ROOT}/${header}")
    if(EXISTS "${own_source}" AND NOT header MATCHES "^tests/")
      continue()
    endif()
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${name}/${header}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"@header@\"\n" @ONLY)
    list(APPEND sources "${source}")
  endforeach()
  add_library(${name} OBJECT EXCLUDE_FROM_ALL ${sources})
  orvane_apply_settings(${name})
  target_compile_options(${name} PRIVATE -O0 -g0)
endfunction()
