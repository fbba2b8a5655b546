# Fails unless the module MODULE, looked into with NM, exports exactly its four entry points.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/entry_points.cmake")

execute_process(COMMAND "${NM}" --dynamic --defined-only --format=just-symbols "${MODULE}"
                OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
string(REGEX REPLACE "\n" ";" symbols "${symbols}")
list(REMOVE_ITEM symbols "")
list(SORT symbols)
if(NOT symbols STREQUAL entry_points)
  message(FATAL_ERROR "The module exports ${symbols}, not ${entry_points}")
endif()
