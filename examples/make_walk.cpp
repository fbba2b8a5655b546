// Writes walk.htr, the example motion of this repository.
//
//   make_walk FILE

#include <cstdio>
#include <fstream>

#include "examples/walk_text.h"

int main(int argument_count, char** arguments) {
  if (argument_count != 2) {
    std::fputs("Usage: make_walk FILE\n", stderr);
    return 2;
  }
  std::ofstream file(arguments[1], std::ios::binary);
  file << examples::WalkText();
  file.close();
  if (file) return 0;
  std::fprintf(stderr, "make_walk: cannot write %s\n", arguments[1]);
  return 3;
}
