#include "formats/text/watched_line.h"

namespace orvane {
namespace {

constexpr std::string_view kByteOrderMarks[] = {"\xEF\xBB\xBF", "\xFF\xFE", "\xFE\xFF"};

}  // namespace

void WatchedLine::Set(const Line& line) {
  continues_ = line.number == line_.number;
  line_ = line;
}

std::string_view WatchedLine::ByteOrderMark() const {
  if (line_.number != 1 || continues_) return {};
  for (const std::string_view mark : kByteOrderMarks) {
    if (line_.text.starts_with(mark)) return line_.text.substr(0, mark.size());
  }
  return {};
}

}  // namespace orvane
