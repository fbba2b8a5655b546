#include "web/core/file_lines.h"

#include <algorithm>
#include <string_view>

#include "formats/text/lines.h"
#include "web/core/take_reading.h"

namespace web {
namespace {

using orvane::Line;
using orvane::LineReader;

constexpr std::size_t kShownBytes = 2000;

LineText ShownPart(std::string_view line, std::size_t column) {
  if (line.size() <= kShownBytes) return {std::string(line), 1};
  const std::size_t at = std::min(column > 0 ? column - 1 : 0, line.size());
  std::size_t begin = at > kShownBytes / 2 ? at - kShownBytes / 2 : 0;
  begin = std::min(begin, line.size() - kShownBytes);
  return {std::string(line.substr(begin, kShownBytes)), begin + 1};
}

}  // namespace

std::optional<LineText> FindLine(const Take& take, std::size_t number, std::size_t column) {
  orvane::FileSource source = OpenFile(take.Path());
  LineReader lines(source);
  Line line;
  while (lines.Next(line)) {
    if (line.number == number) return ShownPart(line.text, column);
  }
  return std::nullopt;
}

}  // namespace web
