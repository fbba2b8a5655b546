#pragma once

#include <string>
#include <string_view>

namespace cli {

// Adds `bytes` to `text` as base64: three bytes as four letters, filled up with '='.
void AppendBase64(std::string& text, std::string_view bytes);

}  // namespace cli
