#pragma once

#include <string_view>

namespace orvane {

// Whether `word` is likely to be `meant`, mistyped: the same but for the case of letters, or with
// up to two letters wrong, missing, or too many. False for the very same word.
bool LooksLike(std::string_view word, std::string_view meant);

}  // namespace orvane
