#include "formats/trc/row_width.h"

#include <algorithm>
#include <cstdint>

namespace orvane {
namespace {

// By pieces whose tabs a byte can count, so that sixteen bytes are compared at once.
std::size_t CountFields(std::string_view text) {
  constexpr std::size_t kPiece = 255;
  std::size_t fields = 1;
  for (; !text.empty(); text.remove_prefix(std::min(kPiece, text.size()))) {
    std::uint8_t tabs = 0;
    for (const char character : text.substr(0, kPiece)) {
      tabs = static_cast<std::uint8_t>(tabs + (character == '\t' ? 1 : 0));
    }
    fields += tabs;
  }
  return fields;
}

}  // namespace

TRCRowWidth WidthOf(std::string_view text) {
  const std::size_t end = text.find_last_not_of(" \t\r");
  if (end == std::string_view::npos) return {CountFields(text), 0};
  const std::size_t last_value = CountFields(text.substr(0, end + 1));
  return {last_value + CountFields(text.substr(end + 1)) - 1, last_value};
}

}  // namespace orvane
