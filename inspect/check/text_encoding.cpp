#include "inspect/check/text_encoding.h"

#include <cstddef>

namespace orvane {
namespace {

// The bytes of the character that starts with `byte`; 0 for a byte that starts none.
std::size_t LengthFrom(unsigned char byte) {
  if (byte < 0x80U) return 1;
  if (byte >= 0xC2U && byte <= 0xDFU) return 2;
  if (byte >= 0xE0U && byte <= 0xEFU) return 3;
  return byte >= 0xF0U && byte <= 0xF4U ? 4 : 0;
}

bool Continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U; }

}  // namespace

bool IsUtf8(std::string_view text) {
  while (!text.empty()) {
    const std::size_t length = LengthFrom(static_cast<unsigned char>(text.front()));
    if (length == 0 || length > text.size()) return false;
    for (std::size_t index = 1; index < length; ++index) {
      if (!Continues(text[index])) return false;
    }
    text.remove_prefix(length);
  }
  return true;
}

}  // namespace orvane
