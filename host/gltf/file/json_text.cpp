#include "host/gltf/file/json_text.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <cmath>
#include <nlohmann/json.hpp>

namespace host::gltf {

namespace {

bool StandsForItself(char letter) {
  return ' ' <= letter && letter <= '~' && letter != '"' && letter != '\\';
}

}  // namespace

// Of the shortest numbers that stand for the same value, the library's own.
void AppendValue(std::string& text, double value) {
  assert(std::isfinite(value));
  std::array<char, 64> digits;
  char* const first = digits.data();
  text.append(first, nlohmann::detail::to_chars(first, first + digits.size(), value));
}

void AppendValue(std::string& text, std::string_view value) {
  if (std::all_of(value.begin(), value.end(), StandsForItself)) {
    text += '"';
    text += value;
    text += '"';
  } else {
    text += nlohmann::json(value).dump();
  }
}

}  // namespace host::gltf
