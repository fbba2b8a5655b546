// Writes the benchmarks' marker file: write_markers FILE.

#include <fstream>
#include <iostream>
#include <string>

#include "bench/marker_text.h"

int main(int argument_count, char** arguments) {
  if (argument_count != 2) {
    std::cerr << "Usage: write_markers FILE\n";
    return 2;
  }
  const std::string text = bench::MakeMarkerText({});
  std::ofstream file(arguments[1], std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  return file ? 0 : 3;
}
