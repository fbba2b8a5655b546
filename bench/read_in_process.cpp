// read_in_process FILE COUNT: reads a motion file (.htr) or a marker file so many times from memory
// and prints the least time that it took, in seconds. It needs no library of benchmarks, which not
// every system has.

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <exception>
#include <iostream>
#include <limits>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/text/files.h"
#include "formats/trc/document.h"

namespace {

std::string ReadMotion(std::string_view bytes) {
  orvane::HtrDocument document;
  return orvane::ReadHtrBytes(document, bytes, true);
}

std::string ReadMarkers(std::string_view bytes) {
  orvane::TRCDocument document;
  return document.ReadBytes(bytes, false);
}

double SecondsOf(std::string (*read)(std::string_view), std::string_view bytes) {
  const auto start = std::chrono::steady_clock::now();
  const std::string message = read(bytes);
  const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - start;
  if (!message.empty()) throw std::runtime_error(message);
  return taken.count();
}

}  // namespace

int main(int argument_count, char** arguments) try {
  if (argument_count != 3) {
    std::cerr << "Usage: read_in_process FILE COUNT\n";
    return 2;
  }
  const std::string path = arguments[1];
  const std::optional<std::string> bytes = orvane::ReadFileBytes(path);
  if (!bytes) throw std::runtime_error(path + " cannot be read");
  double least = std::numeric_limits<double>::infinity();
  for (int left = std::atoi(arguments[2]); left > 0; --left) {
    least = std::min(least, SecondsOf(path.ends_with(".htr") ? ReadMotion : ReadMarkers, *bytes));
  }
  std::cout << least << "\n";
  return 0;
} catch (const std::exception& error) {
  std::cerr << "read_in_process: " << error.what() << "\n";
  return 1;
}
