#include "plugin/trc/outline.h"

#include "plugin/text/lines.h"
#include "plugin/trc/line_rules.h"

namespace orvane {

TRCOutline OutlineTRC(std::string_view bytes) {
  TRCOutline outline{bytes, 0};
  LineReader lines(bytes);
  Line line;
  for (std::size_t number = 0; lines.Next(line); ++number) {
    if (number == kPerhapsBlankLine) {
      outline.header = bytes.substr(0, static_cast<std::size_t>(line.text.data() - bytes.data()));
    }
    if (IsFrame(line, number)) ++outline.frames;
    Line thrown_away;
    if (ReplacesNextLine(line)) (void)lines.Next(thrown_away);
  }
  return outline;
}

}  // namespace orvane
