#pragma once

#include <filesystem>
#include <string>
#include <string_view>

// Between paths and the texts of this program, which are UTF-8 on every system. The standard
// library's own conversion takes them for texts of the C locale.

namespace platform {

[[nodiscard]] inline std::filesystem::path PathOf(std::string_view text) {
  return std::u8string(text.begin(), text.end());
}

[[nodiscard]] inline std::string TextOf(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace platform
