# The SDK of a real host in place of sdk/ and host/: ORVANE_SDK_TARGET, which has its libraries and
# those include folders where what sdk/ declares is found under the same names.
if(NOT WIN32)
  message(FATAL_ERROR "ORVANE_SDK_TARGET is for Windows: only there is a host other than our own")
endif()
if(NOT TARGET ${ORVANE_SDK_TARGET})
  message(FATAL_ERROR "There is no target ${ORVANE_SDK_TARGET}. A file that defines it is named by "
                      "CMAKE_PROJECT_OrvaneFileIO_INCLUDE.")
endif()

# In front of the folder that sdk/ is in.
include_directories(BEFORE
  $<TARGET_PROPERTY:${ORVANE_SDK_TARGET},INTERFACE_INCLUDE_DIRECTORIES>)
add_library(skelder_sdk INTERFACE)
target_link_libraries(skelder_sdk INTERFACE ${ORVANE_SDK_TARGET} orvane_platform)
