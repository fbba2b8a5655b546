#include "inspect/summary/bvk_summary.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <string_view>
#include <vector>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr std::string_view kOrder = "$Order";
constexpr std::string_view kDropout = "DROPOUT\t";
constexpr std::size_t kPiece = std::size_t{256} * 1024;

struct Header {
  std::int64_t frames = 0;
  std::int64_t markers = 0;
  std::int64_t lines_behind = 0;  // that a whole file has behind it
  bool is_whole = false;
};

// Reads a line without its end, which is CR LF where the system's is. Returns false behind the
// last.
bool ReadLine(std::ifstream& file, std::string& line) {
  const bool is_line = static_cast<bool>(std::getline(file, line));
  if (file.good() && line.ends_with('\r')) line.pop_back();
  return is_line;
}

// Reads the line behind "$Order" too. Files with markers have their names there, an empty line and
// "$Points"; those without have the first frame, or end. A frame takes two lines.
void ReadOrder(std::ifstream& file, Header& header) {
  const std::int64_t frame_lines = 2 * header.frames;
  std::string line;
  ReadLine(file, line);
  const bool is_line = file.good();
  const bool is_frame = line.find('\t') != std::string::npos;
  if (is_line) {
    header.lines_behind = is_frame ? frame_lines - 1 : frame_lines + 2;
    header.is_whole = true;
  } else {
    header.is_whole = line.empty() && frame_lines == 0;
  }
}

Header ReadHeader(std::ifstream& file) {
  Header header;
  std::string line;
  while (ReadLine(file, line) && line != kOrder) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string::npos) continue;
    const std::string keyword = line.substr(0, blank);
    const std::int64_t value = ParseInt(line.substr(blank + 1));
    if (keyword == "$NumFrames") header.frames = std::max<std::int64_t>(value, 0);
    if (keyword == "$NumMarkers") header.markers = value;
  }
  if (file.good()) ReadOrder(file, header);
  return header;
}

std::int64_t CountOf(std::string_view wanted, std::string_view text) {
  std::int64_t count = 0;
  for (std::size_t at = text.find(wanted); at != std::string_view::npos;
       at = text.find(wanted, at + wanted.size())) {
    ++count;
  }
  return count;
}

struct Body {
  std::int64_t line_feeds = 0;
  std::int64_t dropouts = 0;
};

// A dropout may begin in one piece and end in the next, so the start of one is carried over.
Body ReadBody(std::ifstream& file) {
  Body body;
  std::vector<char> bytes(kPiece);
  std::size_t carried = 0;
  while (file) {
    file.read(bytes.data() + carried, static_cast<std::streamsize>(kPiece - carried));
    const std::size_t size = carried + static_cast<std::size_t>(file.gcount());
    const std::string_view text(bytes.data(), size);
    body.line_feeds += CountOf("\n", text.substr(carried));
    body.dropouts += CountOf(kDropout, text);
    const std::size_t last_tab = text.rfind('\t');
    const std::string_view rest =
        last_tab == std::string_view::npos ? text : text.substr(last_tab + 1);
    carried = std::min(rest.size(), kDropout.size() - 1);
    std::copy(text.end() - static_cast<std::ptrdiff_t>(carried), text.end(), bytes.begin());
  }
  return body;
}

}  // namespace

std::optional<BvkSummary> SummarizeBvk(const std::string& path) {
  std::ifstream file(path);  // as text: the system has its own line ends
  file.exceptions(std::ios::badbit);
  const Header header = ReadHeader(file);
  if (!header.is_whole) return std::nullopt;
  const Body body = ReadBody(file);
  if (body.line_feeds != header.lines_behind) return std::nullopt;
  return BvkSummary{header.frames, header.markers, body.dropouts};
}

}  // namespace orvane
