#include "host/gltf/file/base64.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace host::gltf {

namespace {

constexpr std::string_view kDigits =
    "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::uint8_t kNoDigit = 64;

constexpr std::array<std::uint8_t, 256> kValues = [] {
  std::array<std::uint8_t, 256> values{};
  values.fill(kNoDigit);
  for (std::size_t i = 0; i < kDigits.size(); ++i) {
    values[static_cast<unsigned char>(kDigits[i])] = static_cast<std::uint8_t>(i);
  }
  return values;
}();

std::size_t PaddingOf(std::string_view text) {
  std::size_t padding = 0;
  while (padding < 2 && padding < text.size() && text[text.size() - 1 - padding] == '=') ++padding;
  return padding;
}

}  // namespace

std::string EncodedBase64(std::string_view bytes) {
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  std::uint32_t bits = 0;
  unsigned count = 0;
  for (const char byte : bytes) {
    bits = bits << 8U | static_cast<unsigned char>(byte);
    for (count += 8; count >= 6; count -= 6) text += kDigits[bits >> (count - 6) & 63U];
  }
  if (count > 0) text += kDigits[bits << (6 - count) & 63U];
  while (text.size() % 4 != 0) text += '=';
  return text;
}

std::optional<std::string> DecodedBase64(std::string_view text) {
  if (text.size() % 4 != 0) return std::nullopt;
  text.remove_suffix(PaddingOf(text));
  std::string bytes;
  bytes.reserve(text.size() / 4 * 3 + 2);
  std::uint32_t bits = 0;
  unsigned count = 0;
  for (const char digit : text) {
    const std::uint32_t value = kValues[static_cast<unsigned char>(digit)];
    if (value == kNoDigit) return std::nullopt;
    bits = bits << 6U | value;
    count += 6;
    if (count < 8) continue;
    count -= 8;
    bytes += static_cast<char>(bits >> count & 0xFFU);
  }
  return bytes;
}

}  // namespace host::gltf
