#include "formats/text/watched_line.h"

namespace orvane {
namespace {

constexpr std::string_view kByteOrderMarks[] = {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"};

}  // namespace

void WatchedLine::Set(const Line& line) {
  continues_ = line.number == line_.number;
  line_ = line;
  if (!continues_) line_begin_ = line.text.data();
}

std::string_view WatchedLine::ByteOrderMark() const {
  if (line_.number != 1 || continues_) return {};
  for (const std::string_view mark : kByteOrderMarks) {
    if (line_.text.starts_with(mark)) return line_.text.substr(0, mark.size());
  }
  return {};
}

// The reader gives out a text that ends where a NUL stands.
bool WatchedLine::IsCutByNul() const {
  return !line_.ends_with_break && End() != end_of_bytes_ && *End() == '\0';
}

bool WatchedLine::EndsUnfinished() const {
  return !line_.ends_with_break && End() == end_of_bytes_;
}

std::size_t WatchedLine::CarriageReturns() const {
  if (!line_.ends_with_break) return 0;
  std::size_t count = 0;
  while (End()[count] == '\r') ++count;
  return count;
}

}  // namespace orvane
