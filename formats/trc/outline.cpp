#include "formats/trc/outline.h"

#include <algorithm>
#include <span>

#include "formats/trc/line_rules.h"

namespace orvane {
namespace {

// Most headers are shorter.
constexpr std::size_t kFirstBytes = std::size_t{16} * 1024;

// The header that `lines` start with, or as much of it as they hold.
TRCOutliner OutlineHeader(std::string_view lines) {
  TRCOutliner outliner;
  while (!lines.empty() && !outliner.HasHeader()) {
    const std::size_t line = std::min(lines.find('\n'), lines.size() - 1) + 1;
    outliner.Take(lines.substr(0, line));
    lines.remove_prefix(line);
  }
  return outliner;
}

TRCOutliner OutlineAll(std::string_view lines) {
  TRCOutliner outliner;
  outliner.Take(lines);
  return outliner;
}

// What `outline` makes of the first lines of `source`, of as few as `is_enough` asks for.
template <typename IsEnough>
TRCOutliner OutlineOfStart(ByteSource& source, TRCOutliner outline(std::string_view lines),
                           IsEnough is_enough) {
  std::string start;
  for (std::size_t wanted = kFirstBytes;; wanted *= 2) {
    const std::size_t held = start.size();
    start.resize(wanted);
    start.resize(held + ReadFully(source, std::span(start).subspan(held)));
    const bool is_all = start.size() < wanted;
    const std::string_view lines =
        std::string_view(start).substr(0, is_all ? start.size() : start.rfind('\n') + 1);
    const TRCOutliner outliner = outline(lines);
    if (is_all || is_enough(outliner)) return outliner;
  }
}

}  // namespace

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

bool TRCOutliner::HasHeader() const { return number_ >= kPerhapsBlankLine && !throws_away_; }

void TRCOutliner::TakeLine(const Line& line) {
  if (throws_away_) {
    throws_away_ = false;
    return;
  }
  if (IsFrame(line, number_) && frames_++ == 0) first_frame_ = line.text;
  throws_away_ = ReplacesNextLine(line);
  ++number_;
}

std::string TrcHeaderOf(ByteSource& source) {
  return OutlineOfStart(source, OutlineHeader,
                        [](const TRCOutliner& outliner) { return outliner.HasHeader(); })
      .Header();
}

std::string TrcFirstFrameOf(ByteSource& source) {
  return OutlineOfStart(source, OutlineAll,
                        [](const TRCOutliner& outliner) { return outliner.Frames() > 0; })
      .FirstFrame();
}

}  // namespace orvane
