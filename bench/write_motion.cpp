// Writes the benchmarks' motion file: write_motion FILE.

#include <fstream>
#include <iostream>
#include <string>

#include "bench/motion_text.h"

int main(int argument_count, char** arguments) {
  if (argument_count != 2) {
    std::cerr << "Usage: write_motion FILE\n";
    return 2;
  }
  const std::string text = bench::MakeMotionText({});
  std::ofstream file(arguments[1], std::ios::binary);
  file.write(text.data(), static_cast<std::streamsize>(text.size()));
  file.close();
  return file ? 0 : 3;
}
