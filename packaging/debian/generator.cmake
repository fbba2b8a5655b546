# Read by CPack before each kind of package is made.
if(CPACK_GENERATOR STREQUAL "DEB")
  list(TRANSFORM CPACK_INSTALL_CMAKE_PROJECTS REPLACE "^orvane$" "ALL")
  # Each has one of its own.
  set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")
  set(CPACK_PRE_BUILD_SCRIPTS "${CMAKE_CURRENT_LIST_DIR}/documents.cmake")
endif()
