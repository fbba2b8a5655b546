#pragma once

#include <string_view>

// Whether a word is another one, mistyped. Words are ASCII, or bytes that are compared as they are;
// one of more than 40 bytes is like none.

namespace orvane {

// Whether `word` is likely to be `meant`, mistyped: the same but for the case of letters, or with
// up to two letters wrong, missing, or too many. False for the very same word.
[[nodiscard]] bool LooksLike(std::string_view word, std::string_view meant);

}  // namespace orvane
