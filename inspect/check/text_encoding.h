#pragma once

#include <string_view>

// How the text of a file is encoded. Nothing is kept of the bytes, and nothing fails.

namespace orvane {

// Whether `text` is UTF-8, which ASCII is too. Names in the narrow encodings of older systems are
// not.
[[nodiscard]] bool IsUtf8(std::string_view text);

}  // namespace orvane
