#include "inspect/summary/bvk_summary.h"

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <string_view>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr std::string_view kOrder = "$Order";
constexpr std::string_view kDropout = "DROPOUT\t";
constexpr std::size_t kPiece = std::size_t{256} * 1024;

struct Header {
  std::int64_t frames = 0;
  std::int64_t markers = 0;
  std::string last_frame{};  // its number
  bool has_order = false;
};

// Byte by byte, so that places in the file are known: lines end with CR LF where the system's do.
std::ifstream Open(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  file.exceptions(std::ios::badbit);
  return file;
}

// Reads a line without its end. Returns false behind the last.
bool ReadLine(std::ifstream& file, std::string& line) {
  const bool is_line = static_cast<bool>(std::getline(file, line));
  if (file.good() && line.ends_with('\r')) line.pop_back();
  return is_line;
}

Header ReadHeader(std::ifstream& file) {
  Header header;
  std::string line;
  while (ReadLine(file, line) && line != kOrder) {
    const std::size_t blank = line.find(' ');
    if (blank == std::string::npos) continue;
    const std::string keyword = line.substr(0, blank);
    const std::string value = line.substr(blank + 1);
    if (keyword == "$NumFrames") header.frames = std::max<std::int64_t>(ParseInt(value), 0);
    if (keyword == "$NumMarkers") header.markers = ParseInt(value);
    if (keyword == "$LastFrame") header.last_frame = value;
  }
  header.has_order = file.good();
  return header;
}

std::size_t SizeOf(std::ifstream& file) {
  return static_cast<std::size_t>(file.seekg(0, std::ios::end).tellg());
}

// The last `size` bytes, or all where there are not so many, without carriage returns.
std::string ReadEnd(std::ifstream& file, std::size_t size) {
  const std::size_t all = SizeOf(file);
  std::string text(std::min(all, size), '\0');
  file.seekg(static_cast<std::streamoff>(all - text.size()));
  file.read(text.data(), static_cast<std::streamsize>(text.size()));
  text.resize(static_cast<std::size_t>(file.gcount()));
  std::erase(text, '\r');
  return text;
}

// Whether the file ends with the frame of that number, and an empty line.
bool EndsWithFrame(std::ifstream& file, const std::string& number) {
  constexpr std::string_view kEnd = "\t\n\n";
  for (std::size_t size = kPiece;; size *= 2) {
    const std::string text = ReadEnd(file, size);
    if (!text.ends_with(kEnd)) return false;
    const std::string_view frame = std::string_view(text).substr(0, text.size() - kEnd.size());
    if (const std::size_t break_before = frame.rfind('\n');
        break_before != std::string_view::npos) {
      return text.substr(break_before + 1).starts_with(number + '\t');
    }
    if (size >= SizeOf(file)) return false;
  }
}

// A file without markers has neither names nor "$Points".
bool EndsWithNames(std::ifstream& file, const Header& header) {
  const std::string end = ReadEnd(file, kPiece);
  return end.ends_with("\n\n$Points\n") || (header.markers == 0 && end.ends_with("$Order\n"));
}

std::int64_t CountOf(std::string_view wanted, std::string_view text) {
  std::int64_t count = 0;
  for (std::size_t at = text.find(wanted); at != std::string_view::npos;
       at = text.find(wanted, at + wanted.size())) {
    ++count;
  }
  return count;
}

}  // namespace

std::optional<BvkSummary> SummarizeBvk(const std::string& path) {
  std::ifstream file = Open(path);
  const Header header = ReadHeader(file);
  if (!header.has_order) return std::nullopt;
  const bool is_whole =
      header.frames > 0 ? EndsWithFrame(file, header.last_frame) : EndsWithNames(file, header);
  if (!is_whole) return std::nullopt;
  return BvkSummary{header.frames, header.markers};
}

// A dropout may begin in one piece and end in the next, so the start of one is carried over.
std::int64_t CountBvkDropouts(const std::string& path) {
  std::ifstream file = Open(path);
  (void)ReadHeader(file);
  std::int64_t count = 0;
  std::string bytes(kPiece, '\0');
  std::size_t carried = 0;
  while (file) {
    file.read(bytes.data() + carried, static_cast<std::streamsize>(kPiece - carried));
    const std::string_view text =
        std::string_view(bytes).substr(0, carried + static_cast<std::size_t>(file.gcount()));
    count += CountOf(kDropout, text);
    const std::string_view rest = text.substr(text.rfind('\t') + 1);
    carried = std::min(rest.size(), kDropout.size() - 1);
    std::copy(text.end() - static_cast<std::ptrdiff_t>(carried), text.end(), bytes.begin());
  }
  return count;
}

}  // namespace orvane
