// Writes one of the examples of this repository: the motion walk.htr, the marker file walk.trc or
// the mapping of its markers, walk.mnm; or, with a number, the markers of another body that walks,
// or the mapping of those.
//
//   make_walk FILE [NUMBER]

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <string_view>

#include "examples/marker_walk_text.h"
#include "examples/varied_walk.h"
#include "examples/walk_text.h"

namespace {

std::string MappingOf(const examples::VariedWalk& walk) {
  std::string text;
  for (std::size_t marker = 0; marker < walk.roles.size(); ++marker) {
    if (walk.roles[marker].empty()) continue;
    text += walk.roles[marker] + "\t" + walk.table.names[marker] + "\t\r\n";
  }
  return text;
}

std::string TextFor(std::string_view file, const char* number) {
  if (number != nullptr) {
    const std::uint64_t seed = std::strtoull(number, nullptr, 10);
    const examples::VariedWalk walk = examples::MakeVariedWalk(examples::VariationOf(seed));
    return file.ends_with(".mnm") ? MappingOf(walk) : TextOf(walk.table);
  }
  if (file.ends_with(".trc")) return examples::MarkerWalkText();
  if (file.ends_with(".mnm")) return examples::MarkerMappingText();
  return examples::WalkText();
}

}  // namespace

int main(int argument_count, char** arguments) {
  if (argument_count != 2 && argument_count != 3) {
    std::fputs(
        "Usage: make_walk FILE [NUMBER]\n"
        "  FILE ends in .htr, .trc or .mnm; with a NUMBER, another for each, in .trc or .mnm\n",
        stderr);
    return 2;
  }
  std::ofstream file(arguments[1], std::ios::binary);
  file << TextFor(arguments[1], argument_count == 3 ? arguments[2] : nullptr);
  file.close();
  if (file) return 0;
  std::fprintf(stderr, "make_walk: cannot write %s\n", arguments[1]);
  return 3;
}
