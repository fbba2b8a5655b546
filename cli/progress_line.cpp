#include "cli/progress_line.h"

#include <iostream>

#include "cli/messages.h"

namespace cli {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds kPause{100};

// Back to the start of the line, and wipe it.
constexpr char kWipe[] = "\r\033[K";

std::string TwoDigits(std::int64_t number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

}  // namespace

ProgressLine::ProgressLine(const std::string& title, bool shown)
    : title_(Printable(title)), shown_(shown), last_print_(start_) {}

ProgressLine::~ProgressLine() {
  if (printed_) std::cerr << kWipe << std::flush;
}

void ProgressLine::Show(int percent) {
  const Clock::time_point now = Clock::now();
  if (!shown_ || now - last_print_ < kPause) return;
  last_print_ = now;
  printed_ = true;
  std::cerr << kWipe << title_ << "  " << percent << " %";
  if (percent > 0) {
    const auto left = (now - start_) * (100 - percent) / percent;
    std::cerr << ", " << ClockTime(std::chrono::ceil<seconds>(left)) << " left";
  }
  std::cerr << std::flush;
}

std::string ClockTime(seconds time) {
  const std::int64_t minutes = time.count() / 60;
  const std::string tail = ":" + TwoDigits(time.count() % 60);
  if (minutes < 60) return std::to_string(minutes) + tail;
  return std::to_string(minutes / 60) + ":" + TwoDigits(minutes % 60) + tail;
}

}  // namespace cli
