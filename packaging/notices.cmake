# Installs the file `notices`: whose code is linked into what is installed, with the notices that
# Debian's packages of it bring. `for_windows` tells which system that is for, `nanobind` where the
# sources of that lie, for the Python package, and `holds_sqlite` whether that is in it too.

# add_notice(what package): appends the notice of `what`, which Debian's `package` has.
function(add_notice what package)
  file(READ "/usr/share/doc/${package}/copyright" notice)
  add_notice_text("${what}" "${notice}")
  set(text "${text}" PARENT_SCOPE)
endfunction()

# The same of the text `notice`.
function(add_notice_text what notice)
  string(REPEAT "=" 80 line)
  set(text "${text}\n${line}\n${what}\n${line}\n\n${notice}" PARENT_SCOPE)
endfunction()

set(text "The program and the libraries of OrvaneFileIO hold parts of the works below. The notices are those of
Debian's packages of them, which also tell of parts that are not used here. The licences that they
look for below /usr/share/common-licenses are at https://www.gnu.org/licenses/ too.
")
add_notice("CLI11" libcli11-dev)
add_notice("JSON for Modern C++" nlohmann-json3-dev)
if(for_windows)
  add_notice("zlib" libz-mingw-w64-dev)
  add_notice("The libraries of the GNU compilers: libgcc, libstdc++" gcc-mingw-w64-base)
  add_notice("MinGW-w64: its run-time library and winpthreads" mingw-w64-common)
  string(REPLACE "\n" "\r\n" text "${text}")
endif()
if(nanobind)
  file(GLOB license "${nanobind}/../nanobind-*.dist-info/licenses/LICENSE")
  if(holds_sqlite)
    add_notice("SQLite" libsqlite3-0)
  endif()
  file(READ "${license}" notice)
  add_notice_text("nanobind" "${notice}")
  file(READ "${nanobind}/ext/robin_map/include/tsl/robin_map.h" notice LIMIT 2000)
  string(REGEX REPLACE "\\*/.*" "*/\n" notice "${notice}")
  add_notice_text("robin-map" "${notice}")
endif()

set(path "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}/${notices}")
message(STATUS "Installing: ${path}")
file(WRITE "${path}" "${text}")
