# A header is complete when a source file that holds nothing but its #include compiles.
include_guard(GLOBAL)

# orvane_check_headers(name DIRECTORIES directory... [EXCLUDE regex])
# An object library, not part of the default build, that compiles alone every header below the
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
    set(source "${CMAKE_CURRENT_BINARY_DIR}/${name}/${header}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"@header@\"\n" @ONLY)
    list(APPEND sources "${source}")
  endforeach()
  add_library(${name} OBJECT EXCLUDE_FROM_ALL ${sources})
  orvane_apply_settings(${name})
  target_compile_options(${name} PRIVATE -O0 -g0)
endfunction()
