# Libraries that are nothing but headers are the same for every system. They are taken from where
# this system keeps its own, each alone: what lies beside them is not the other system's.
include_guard(GLOBAL)

# orvane_headers_only(target header): an imported library of the file or folder among this system's
# headers that the path `header` begins with.
function(orvane_headers_only target header)
  string(REGEX MATCH "^[^/]+" entry "${header}")
  find_path(ORVANE_HEADERS_OF_${entry} "${header}" PATHS /usr/include NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(folder "${PROJECT_BINARY_DIR}/headers/${entry}")
  file(MAKE_DIRECTORY "${folder}")
  file(CREATE_LINK "${ORVANE_HEADERS_OF_${entry}}/${entry}" "${folder}/${entry}" SYMBOLIC)
  if(NOT TARGET ${target})
    add_library(${target} INTERFACE IMPORTED)
    target_include_directories(${target} SYSTEM INTERFACE "${folder}")
  endif()
endfunction()
