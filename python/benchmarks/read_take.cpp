#include <chrono>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>

#include "formats/htr/document.h"
#include "formats/text/files.h"
#include "formats/text/numbers.h"
#include "formats/trc/document.h"
#include "inspect/check/htr_check.h"
#include "inspect/check/trc_check.h"

// What reading a file takes in C++: read_take FILE prints the seconds of processor time and on the
// clock, and the kilobytes of memory, for compare_reading.py to hold other ways against.

namespace {

// What the system says of this process' memory: "VmRSS", or "VmHWM" for the most so far.
long Kilobytes(const std::string& what) {
  std::ifstream status("/proc/self/status");
  std::string line;
  while (std::getline(status, line)) {
    if (line.starts_with(what)) return orvane::ParseInt(line.substr(what.size() + 1));
  }
  return 0;
}

void Read(const std::string& name) {
  orvane::FileSource source(name);
  if (name.ends_with(".htr")) {
    orvane::HtrDocument document;
    (void)orvane::CheckHtr(name, source, document);
  } else {
    orvane::TRCDocument document;
    (void)orvane::CheckTrc(name, source, document);
  }
}

}  // namespace

int main(int argument_count, char** arguments) {
  if (argument_count != 2) return 2;
  const long before = Kilobytes("VmRSS");
  const auto begin = std::chrono::steady_clock::now();
  const std::clock_t begin_of_processor = std::clock();
  Read(arguments[1]);
  const auto processor = static_cast<double>(std::clock() - begin_of_processor) / CLOCKS_PER_SEC;
  const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - begin;
  std::printf("%.4f %.4f %ld\n", processor, elapsed.count(), Kilobytes("VmHWM") - before);
  return 0;
}
