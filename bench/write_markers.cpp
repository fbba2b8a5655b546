// Writes the benchmarks' marker file: write_markers FILE [MARKERS FRAMES].

#include <fstream>
#include <iostream>
#include <string>

#include "bench/marker_text.h"
#include "formats/text/numbers.h"

int main(int argument_count, char** arguments) {
  if (argument_count != 2 && argument_count != 4) {
    std::cerr << "Usage: write_markers FILE [MARKERS FRAMES]\n";
    return 2;
  }
  bench::MarkerSize size;
  if (argument_count == 4) {
    size = {orvane::ParseInt(arguments[2]), orvane::ParseInt(arguments[3])};
  }
  const std::string text = bench::MakeMarkerText(size);
  std::ofstream file(arguments[1], std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  return file ? 0 : 3;
}
