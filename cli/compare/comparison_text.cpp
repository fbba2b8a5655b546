#include "cli/compare/comparison_text.h"

#include <algorithm>

#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "formats/text/numbers.h"

namespace cli {

using orvane::FormatInt;

std::string Count(std::size_t count, const std::string& noun) {
  return Counted(static_cast<std::int64_t>(count), noun);
}

const char* FileLetter(orvane::WhichFile file) { return file == orvane::WhichFile::kA ? "A" : "B"; }

std::string FileLines(const std::string& file_a, const std::string& file_b) {
  return "A  " + Printable(file_a) + "\nB  " + Printable(file_b) + "\n";
}

std::string FrameCell(const std::optional<std::int64_t>& frame) {
  return PadLeft(frame ? FormatInt(*frame) : "-", kNumberWidth);
}

std::size_t WidthOf(const std::vector<std::string>& names) {
  std::size_t width = kNarrowestNames;
  for (const std::string& name : names)
    width = std::max(width, std::min(Width(name), kWidestNames));
  return width;
}

}  // namespace cli
