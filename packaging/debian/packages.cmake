# Packages of Debian's kind, one for each component that is installed. The archives that are made
# beside them hold the program's component alone.

# orvane_debian_package(component SECTION name SUMMARY text DESCRIPTION text [DEPENDS text] [SHLIBDEPS])
# The package of that name has what is installed as the component, with a copyright and a changelog.
# DEPENDS are packages, with commas between them; with SHLIBDEPS also those of the libraries that its
# binaries need. What is known of lintian's findings stands in COMPONENT.lintian-overrides.
# To be called before CPack is included, from the same folder.
macro(orvane_debian_package component)
  cmake_parse_arguments(PACKAGE "SHLIBDEPS" "SECTION;SUMMARY;DESCRIPTION;DEPENDS" "" ${ARGN})
  string(TOUPPER "${component}" PACKAGE_COMPONENT)
  list(APPEND CPACK_COMPONENTS_ALL ${component})
  set(CPACK_DEBIAN_${PACKAGE_COMPONENT}_PACKAGE_NAME ${component})
  set(CPACK_DEBIAN_${PACKAGE_COMPONENT}_PACKAGE_SECTION "${PACKAGE_SECTION}")
  set(CPACK_DEBIAN_${PACKAGE_COMPONENT}_PACKAGE_DEPENDS "${PACKAGE_DEPENDS}")
  set(CPACK_DEBIAN_${PACKAGE_COMPONENT}_PACKAGE_SHLIBDEPS ${PACKAGE_SHLIBDEPS})
  set(CPACK_DEBIAN_${PACKAGE_COMPONENT}_DESCRIPTION "${PACKAGE_SUMMARY}\n${PACKAGE_DESCRIPTION}")
endmacro()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_PROJECT_CONFIG_FILE "${CMAKE_CURRENT_LIST_DIR}/generator.cmake")
set(CPACK_ORVANE_SOURCE_DIR "${PROJECT_SOURCE_DIR}")
