#include "formats/trc/outline.h"

#include "formats/trc/line_rules.h"

namespace orvane {

void TRCOutliner::Take(std::string_view lines) {
  LineReader reader(lines);
  Line line;
  bool in_header = number_ < kPerhapsBlankLine;
  while (reader.Next(line)) {
    if (in_header && number_ == kPerhapsBlankLine && !throws_away_) {
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

}  // namespace orvane
