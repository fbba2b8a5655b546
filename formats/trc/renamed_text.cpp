#include "formats/trc/renamed_text.h"

#include <cstddef>

#include "formats/text/lines.h"
#include "formats/trc/fields.h"
#include "formats/trc/line_rules.h"

namespace orvane {
namespace {

// The headings of frame number and time come before the names, each of which is above three
// columns.
bool IsNameColumn(std::size_t column) { return column >= 2 && (column - 2) % 3 == 0; }

// The line of names, which is empty where there is none.
Line LineOfNames(std::string_view bytes) {
  LineReader lines(bytes);
  Line line;
  for (std::size_t number = 0; lines.Next(line); ++number) {
    if (number == kMarkerNamesLine) return line;
    if (ReplacesNextLine(line) && !lines.Next(line)) break;
  }
  return {bytes.substr(bytes.size())};
}

// Whether more text in `line` would move nothing behind it out of its piece.
bool IsWhole(const Line& line, std::string_view bytes) {
  return line.ends_with_break || line.text.data() + line.text.size() == bytes.data() + bytes.size();
}

// The text of `line` with other names. A name is one only before a tab, as for the reader.
std::string WithNames(const Line& line, const std::map<std::string, std::string>& names) {
  std::string text;
  TRCFields fields(line);
  for (std::size_t column = 0; fields.HasTab(); ++column) {
    const std::string field(fields.Take());
    const auto other = IsNameColumn(column) ? names.find(field) : names.end();
    text += other == names.end() ? field : other->second;
    text += '\t';
  }
  return text.append(fields.Get());
}

}  // namespace

std::optional<std::string> RenameTrcMarkers(std::string_view bytes,
                                            const std::map<std::string, std::string>& names) {
  const Line line = LineOfNames(bytes);
  const std::string text = WithNames(line, names);
  if (!IsWhole(line, bytes) || text.size() + 1 > kLongestPiece) return std::nullopt;
  const auto begin = static_cast<std::size_t>(line.text.data() - bytes.data());
  return std::string(bytes).replace(begin, line.text.size(), text);
}

}  // namespace orvane
