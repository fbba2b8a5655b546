#include "formats/trc/turned_text.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "formats/text/lines.h"
#include "formats/trc/line_rules.h"

namespace orvane {
namespace {

bool StartsNumber(std::string_view text) {
  if (text.empty()) return false;
  return (text.front() >= '0' && text.front() <= '9') || text.front() == '.';
}

// Appends `cell` with the other sign.
void AppendNegated(std::string_view cell, std::string& out) {
  const std::size_t start = std::min(cell.find_first_not_of(" \v\f\r\n"), cell.size());
  out += cell.substr(0, start);
  cell.remove_prefix(start);
  const bool is_signed = cell.starts_with('-') || cell.starts_with('+');
  const bool is_number = StartsNumber(is_signed ? cell.substr(1) : cell);
  if (is_number && !cell.starts_with('-')) out += '-';
  if (is_number && is_signed) cell.remove_prefix(1);
  out += cell;
}

// The cells of a line one after the other, each without its tab.
class Cells {
 public:
  explicit Cells(std::string_view line) : rest_(line) {}

  [[nodiscard]] bool AtEnd() const { return at_end_; }

  [[nodiscard]] std::string_view Take() {
    const std::size_t tab = rest_.find('\t');
    const std::string_view cell = rest_.substr(0, tab);
    at_end_ = tab == std::string_view::npos;
    rest_.remove_prefix(at_end_ ? rest_.size() : tab + 1);
    return cell;
  }

 private:
  std::string_view rest_;
  bool at_end_ = false;
};

// Appends the position that `cells` begin with, behind a tab. Of one that the line cuts short the
// cells that are missing are empty, and none is added behind the last.
void AppendTurned(Cells& cells, std::string& out) {
  std::array<std::string_view, 3> position;
  std::size_t count = 0;
  while (count < position.size() && !cells.AtEnd()) position[count++] = cells.Take();
  const auto& [x, y, z] = position;
  out += '\t';
  out += x;
  if (count > 1) {
    out += '\t';
    out += z;
    out += '\t';
    AppendNegated(y, out);
  }
}

// Appends the frame `line` turned. Frame number and time come first.
void AppendTurnedFrame(std::string_view line, std::string& out) {
  Cells cells(line);
  out += cells.Take();
  if (cells.AtEnd()) return;
  out += '\t';
  out += cells.Take();
  while (!cells.AtEnd()) AppendTurned(cells, out);
}

}  // namespace

std::optional<std::string> TurnZUp(std::string_view bytes) {
  std::string turned;
  turned.reserve(bytes.size() + bytes.size() / 8);
  const char* copied = bytes.data();
  LineReader lines(bytes);
  Line line;
  std::size_t last_number = 0;
  for (std::size_t number = 0; lines.Next(line); ++number) {
    const bool is_frame = IsFrame(line, number);
    if (is_frame && line.number == last_number) return std::nullopt;
    last_number = line.number;
    if (is_frame) {
      turned.append(copied, line.text.data());
      const std::size_t start = turned.size();
      AppendTurnedFrame(line.text, turned);
      if (turned.size() - start + 1 > kLongestPiece) return std::nullopt;
      copied = line.text.data() + line.text.size();
    }
    if (!ReplacesNextLine(line)) continue;
    if (!lines.Next(line)) break;
    last_number = line.number;
  }
  turned.append(copied, bytes.data() + bytes.size());
  return turned;
}

}  // namespace orvane
