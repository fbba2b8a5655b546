# Built from the sources that Debian's package googletest brings: no package has it for other systems.
if(NOT TARGET GTest::gmock)
  find_path(ORVANE_GTEST_SOURCES googlemock/CMakeLists.txt PATHS /usr/src/googletest
            NO_DEFAULT_PATH NO_CMAKE_FIND_ROOT_PATH REQUIRED)
  set(INSTALL_GTEST OFF)
  add_subdirectory("${ORVANE_GTEST_SOURCES}" "${PROJECT_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
endif()
set(GTest_FOUND TRUE)
