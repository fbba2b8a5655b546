# They are linked into whatever links the plug-in's parts.
add_library(orvane_resource_object OBJECT OrvaneFileIO.rc)
target_include_directories(orvane_resource_object PRIVATE
  "${CMAKE_CURRENT_SOURCE_DIR}" "${CMAKE_CURRENT_BINARY_DIR}")
list(TRANSFORM resource_parts REPLACE "^([^/]+)$" "${CMAKE_CURRENT_SOURCE_DIR}/\\1")
set_source_files_properties(OrvaneFileIO.rc PROPERTIES OBJECT_DEPENDS "${resource_parts}")

add_library(orvane_resources INTERFACE)
target_link_libraries(orvane_resources INTERFACE $<TARGET_OBJECTS:orvane_resource_object>)
