# Fails unless the module MODULE, looked into with OBJDUMP, exports exactly its four entry points and
# needs no library but the host's and the system's own. The one of the common dialogs is loaded when
# a dialog is shown.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/entry_points.cmake")

execute_process(COMMAND "${OBJDUMP}" --private-headers "${MODULE}"
                OUTPUT_VARIABLE headers COMMAND_ERROR_IS_FATAL ANY)

string(REGEX MATCH "\\[Ordinal/Name Pointer\\] Table.*" names "${headers}")
string(REGEX MATCHALL "\n\t\\[ *[0-9]+\\] [^\n]+" names "${names}")
list(TRANSFORM names REPLACE "^\n\t\\[ *[0-9]+\\] " "")
list(SORT names)
if(NOT names STREQUAL entry_points)
  message(FATAL_ERROR "The module exports ${names}, not ${entry_points}")
endif()

string(REGEX MATCHALL "DLL Name: [^\n]+" libraries "${headers}")
list(TRANSFORM libraries REPLACE "^DLL Name: " "")
list(TRANSFORM libraries TOLOWER)
set(allowed advapi32.dll kernel32.dll msvcrt.dll ole32.dll shell32.dll skelder.dll user32.dll)
set(others ${libraries})
list(REMOVE_ITEM others ${allowed})
if(others)
  message(FATAL_ERROR "The module needs ${others} beside ${allowed}")
endif()
foreach(library skelder.dll kernel32.dll)
  if(NOT library IN_LIST libraries)
    message(FATAL_ERROR "The module needs ${libraries}, but not ${library}")
  endif()
endforeach()
