#include <windows.h>

#include <cstddef>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <stdexcept>
#include <string>

#include "platform/side_by_side.h"

// side_by_side_program PIECES PROCESSES FILE: does as many pieces and writes what comes of each to
// FILE, a line for each: its result or "none". A result is the number of the piece, that of the
// process, and as many bytes as it has. Piece 1 throws, piece 2 ends its process, piece 3 is long.

namespace {

std::string Work(std::size_t index) {
  if (index == 1) throw std::runtime_error("not here");
  if (index == 2) std::_Exit(3);
  const std::string text = std::to_string(index) + " " + std::to_string(GetCurrentProcessId());
  return index == 3 ? text + " " + std::string(1'000'000, 'x') : text;
}

}  // namespace

int main(int argument_count, char** arguments) {
  if (argument_count != 4) return 2;
  std::size_t ended = 0;
  const platform::SideBySide pieces{Work, [&ended](std::size_t) { ++ended; }};
  const auto results =
      platform::RunSideBySide(std::stoul(arguments[1]), std::stoul(arguments[2]), pieces);
  std::ofstream file(arguments[3]);
  for (const auto& result : results) file << result.value_or("none") << '\n';
  file << "ended " << ended << " in " << GetCurrentProcessId() << '\n';
  return file.flush() ? 0 : 1;
}
