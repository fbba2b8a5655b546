#pragma once

#include <algorithm>
#include <string_view>

// Names whose case does not count.

namespace host {

// Whether both texts are the same but for the case of ASCII letters.
inline bool SameButForCase(std::string_view left, std::string_view right) {
  const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [&lower](char a, char b) { return lower(a) == lower(b); });
}

}  // namespace host
