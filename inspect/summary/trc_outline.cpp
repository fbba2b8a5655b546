#include "inspect/summary/trc_outline.h"

#include <algorithm>
#include <cstddef>
#include <fstream>

namespace orvane {
namespace {

constexpr std::size_t kPiece = std::size_t{256} * 1024;

}  // namespace

std::optional<TRCOutliner> OutlineTrcFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file) return std::nullopt;
  TRCOutliner outliner;
  std::string bytes(kPiece, '\0');
  std::size_t held = 0;  // of a line whose end has not been read
  while (file) {
    if (held == bytes.size()) bytes.resize(2 * held);
    file.read(bytes.data() + held, static_cast<std::streamsize>(bytes.size() - held));
    const std::string_view text(bytes.data(), held + static_cast<std::size_t>(file.gcount()));
    const std::size_t lines = text.rfind('\n') + 1;  // 0 when there is none
    outliner.Take(text.substr(0, lines));
    held = text.size() - lines;
    std::copy(text.begin() + static_cast<std::ptrdiff_t>(lines), text.end(), bytes.begin());
  }
  outliner.Take(std::string_view(bytes).substr(0, held));
  if (file.bad()) return std::nullopt;
  return outliner;
}

TRCOutliner OutlineTrc(std::string_view bytes) {
  TRCOutliner outliner;
  outliner.Take(bytes);
  return outliner;
}

}  // namespace orvane
