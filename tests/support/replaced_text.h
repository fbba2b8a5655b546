#pragma once

#include <string>

namespace test {

// `text` with the first `from`, which is there, replaced by `to`.
inline std::string Replaced(std::string text, const std::string& from, const std::string& to) {
  return text.replace(text.find(from), from.size(), to);
}

}  // namespace test
