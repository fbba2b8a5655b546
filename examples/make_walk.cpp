// Writes one of the examples of this repository: the motion walk.htr, the marker file walk.trc or
// the mapping of its markers, walk.mnm.
//
//   make_walk FILE

#include <cstdio>
#include <fstream>
#include <string_view>

#include "examples/marker_walk_text.h"
#include "examples/walk_text.h"

namespace {

std::string TextFor(std::string_view file) {
  if (file.ends_with(".trc")) return examples::MarkerWalkText();
  if (file.ends_with(".mnm")) return examples::MarkerMappingText();
  return examples::WalkText();
}

}  // namespace

int main(int argument_count, char** arguments) {
  if (argument_count != 2) {
    std::fputs("Usage: make_walk FILE\n  FILE ends in .htr, .trc or .mnm\n", stderr);
    return 2;
  }
  std::ofstream file(arguments[1], std::ios::binary);
  file << TextFor(arguments[1]);
  file.close();
  if (file) return 0;
  std::fprintf(stderr, "make_walk: cannot write %s\n", arguments[1]);
  return 3;
}
