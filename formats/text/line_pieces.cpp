#include "formats/text/line_pieces.h"

#include <algorithm>
#include <cstddef>
#include <string>

namespace orvane {
namespace {

constexpr std::size_t kPiece = std::size_t{256} * 1024;

}  // namespace

void TakeByLines(std::istream& stream, const std::function<void(std::string_view lines)>& take) {
  std::string bytes(kPiece, '\0');
  std::size_t held = 0;  // of a line whose end has not been read
  while (stream) {
    if (held == bytes.size()) bytes.resize(2 * held);
    stream.read(bytes.data() + held, static_cast<std::streamsize>(bytes.size() - held));
    const std::string_view text(bytes.data(), held + static_cast<std::size_t>(stream.gcount()));
    const std::size_t lines = text.rfind('\n') + 1;  // 0 when there is none
    if (lines > 0) take(text.substr(0, lines));
    held = text.size() - lines;
    std::copy(text.begin() + static_cast<std::ptrdiff_t>(lines), text.end(), bytes.begin());
  }
  if (held > 0) take(std::string_view(bytes).substr(0, held));
}

}  // namespace orvane
