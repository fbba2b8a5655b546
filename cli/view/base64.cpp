#include "cli/view/base64.h"

#include <cstddef>
#include <cstdint>

namespace cli {
namespace {

constexpr std::string_view kLetters =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t kBytes = 3;
constexpr std::size_t kLettersOfGroup = 4;

// The bytes of `group`, of which there are three at the most, one behind the other.
std::uint32_t BitsOf(std::string_view group) {
  std::uint32_t bits = 0;
  for (std::size_t at = 0; at < kBytes; ++at) {
    const char byte = at < group.size() ? group[at] : '\0';
    bits = bits << 8U | static_cast<unsigned char>(byte);
  }
  return bits;
}

}  // namespace

void AppendBase64(std::string& text, std::string_view bytes) {
  text.reserve(text.size() + (bytes.size() + kBytes - 1) / kBytes * kLettersOfGroup);
  for (std::size_t at = 0; at < bytes.size(); at += kBytes) {
    const std::string_view group = bytes.substr(at, kBytes);
    const std::uint32_t bits = BitsOf(group);
    for (std::size_t letter = 0; letter < kLettersOfGroup; ++letter) {
      const std::size_t shift = 6 * (kLettersOfGroup - 1 - letter);
      text += letter > group.size() ? '=' : kLetters[bits >> shift & 0x3fU];
    }
  }
}

}  // namespace cli
