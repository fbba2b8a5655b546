#include "formats/trc/outline.h"

#include <algorithm>

namespace orvane {

void TRCOutliner::Take(std::string_view lines) {
  LineReader reader(lines);
  Line line;
  bool in_header = !HasHeader();
  while (reader.Next(line)) {
    if (in_header && HasHeader()) {
      header_ += lines.substr(0, static_cast<std::size_t>(line.text.data() - lines.data()));
      in_header = false;
    }
    TakeLine(line);
  }
  if (in_header) header_ += lines;
}

void TRCOutliner::TakeLine(const Line& line) {
  if (throws_away_) {
    throws_away_ = false;
    return;
  }
  if (IsFrame(line, number_) && frames_++ == 0) first_frame_ = line.text;
  throws_away_ = ReplacesNextLine(line);
  ++number_;
}

std::string TrcHeaderOf(std::string_view bytes) {
  TRCOutliner outliner;
  while (!bytes.empty() && !outliner.HasHeader()) {
    const std::size_t line = std::min(bytes.find('\n'), bytes.size() - 1) + 1;
    outliner.Take(bytes.substr(0, line));
    bytes.remove_prefix(line);
  }
  return outliner.Header();
}

}  // namespace orvane
