#pragma once

#include <algorithm>
#include <string>

// Texts as other systems and programs would have saved them.

namespace test {

// What some programs put before UTF-8 text.
inline constexpr char kMark[] = "\xEF\xBB\xBF";

// `text`, which is ASCII, with a NUL in front of every character or behind it.
inline std::string BigEndian(const std::string& text) {
  std::string wide;
  for (const char character : text) wide += {'\0', character};
  return wide;
}
inline std::string LittleEndian(const std::string& text) {
  std::string wide;
  for (const char character : text) wide += {character, '\0'};
  return wide;
}

// As systems long ago ended their lines.
inline std::string WithReturns(const std::string& text) {
  std::string returned = text;
  std::replace(returned.begin(), returned.end(), '\n', '\r');
  return returned;
}

}  // namespace test
