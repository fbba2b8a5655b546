# Run by CPack when what goes into the packages lies in folders of their names: adds what every
# package of Debian's kind has.
foreach(component IN LISTS CPACK_COMPONENTS_ALL)
  set(share "${CPACK_TEMPORARY_DIRECTORY}/${component}/usr/share")
  configure_file("${CPACK_ORVANE_SOURCE_DIR}/LICENSE" "${share}/doc/${component}/copyright" COPYONLY)
  configure_file("${CPACK_ORVANE_SOURCE_DIR}/packaging/debian/changelog"
                 "${share}/doc/${component}/changelog" COPYONLY)
  execute_process(COMMAND gzip --best --no-name "${share}/doc/${component}/changelog"
                  COMMAND_ERROR_IS_FATAL ANY)
  set(overrides "${CPACK_ORVANE_SOURCE_DIR}/packaging/debian/${component}.lintian-overrides")
  if(EXISTS "${overrides}")
    configure_file("${overrides}" "${share}/lintian/overrides/${component}" COPYONLY)
  endif()
endforeach()
