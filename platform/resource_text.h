#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "platform/byte_reader.h"

// The texts and names inside resources: UTF-16 in the file, UTF-8 here.

namespace platform {

// Turns UTF-16, little-endian, into UTF-8. What is no valid UTF-16 becomes U+FFFD; an odd last
// byte is dropped.
[[nodiscard]] std::string Utf8FromUtf16(std::span<const std::byte> utf16);

// Reads a text that ends with a zero, and the zero. On failure the text is what there was of it.
std::string ReadText(ByteReader& reader);

// What names a resource, a window class or a picture: a number, or else a text.
struct ResourceName {
  std::optional<std::uint16_t> number;
  std::string text;
};

ResourceName ReadName(ByteReader& reader);

}  // namespace platform
