#pragma once

#include <optional>
#include <string>
#include <string_view>

// Bytes as text and back. What stands before and behind it in a file is container.h's business.

namespace host::gltf {

// `bytes` as base64 (RFC 4648, with padding).
std::string EncodedBase64(std::string_view bytes);

// The bytes that `text` stands for (RFC 4648, with padding), or nothing when it is no base64.
[[nodiscard]] std::optional<std::string> DecodedBase64(std::string_view text);

}  // namespace host::gltf
