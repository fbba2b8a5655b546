#include "cli/common/progress_line.h"

#include <iostream>

#include "cli/common/messages.h"
#include "platform/terminal.h"

namespace cli {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds kPause{100};

// Back to the start of the line, and wipe it.
constexpr char kWipe[] = "\r\033[K";

// The last column stays empty, because some terminals wrap when it is taken.
constexpr std::size_t kLongestTail = sizeof "  100 %, 10:00:00 left";

constexpr char kEllipsis[] = "...";
constexpr std::size_t kEllipsisWidth = sizeof kEllipsis - 1;

// Whether `byte` goes on with a character of UTF-8.
bool Continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

// The last `count` characters of `text`, or all of it.
std::string LastCharacters(const std::string& text, std::size_t count) {
  std::size_t start = text.size();
  while (start > 0 && count > 0) {
    --start;
    if (!Continues(text[start])) --count;
  }
  return text.substr(start);
}

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
  std::cerr << kWipe << FittingTitle(title_, platform::ErrorColumns()) << "  " << percent << " %";
  if (percent > 0) {
    const auto left = (now - start_) * (100 - percent) / percent;
    std::cerr << ", " << ClockTime(std::chrono::ceil<seconds>(left)) << " left";
  }
  std::cerr << std::flush;
}

std::string FittingTitle(const std::string& title, int columns) {
  if (columns <= 0) return title;
  const auto width = static_cast<std::size_t>(columns);
  const std::size_t room = width > kLongestTail ? width - kLongestTail : 0;
  if (LastCharacters(title, room) == title) return title;
  if (room <= kEllipsisWidth) return "";
  return kEllipsis + LastCharacters(title, room - kEllipsisWidth);
}

std::string ClockTime(seconds time) {
  const std::int64_t minutes = time.count() / 60;
  const std::string tail = ":" + TwoDigits(time.count() % 60);
  if (minutes < 60) return std::to_string(minutes) + tail;
  return std::to_string(minutes / 60) + ":" + TwoDigits(minutes % 60) + tail;
}

}  // namespace cli
