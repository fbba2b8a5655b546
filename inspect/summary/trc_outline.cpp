#include "inspect/summary/trc_outline.h"

#include <fstream>

#include "formats/text/line_pieces.h"

namespace orvane {

std::optional<TRCOutliner> OutlineTrcFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  TRCOutliner outliner;
  TakeByLines(file, [&outliner](std::string_view lines) { outliner.Take(lines); });
  if (file.bad()) return std::nullopt;
  return outliner;
}

TRCOutliner OutlineTrc(std::string_view bytes) {
  TRCOutliner outliner;
  outliner.Take(bytes);
  return outliner;
}

}  // namespace orvane
