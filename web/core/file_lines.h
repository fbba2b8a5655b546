#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "web/core/take.h"

// Lines of a take's file, and what stands in them. Lines and columns count from 1, columns in
// bytes.

namespace web {

// A part of a line.
struct LineText {
  std::string text;
  std::size_t start = 1;  // its first column
};

// The line, or of a long one some 2,000 bytes around `column`; nothing when there is no such line.
// Throws a Refusal when the file cannot be read.
[[nodiscard]] std::optional<LineText> FindLine(const Take& take, std::size_t line,
                                               std::size_t column);

struct LinePlace {
  std::size_t line = 0;
  std::size_t column = 0;
};

// What stands at a place, as far as its line tells.
struct PlaceInTake {
  std::optional<std::size_t> object{};
  std::optional<std::size_t> frame{};
};

// That of each of `places`, in their order. Throws a Refusal when the file cannot be read.
[[nodiscard]] std::vector<PlaceInTake> FindPlaces(const Take& take, const Header& header,
                                                  const Contents& contents,
                                                  const std::vector<LinePlace>& places);

}  // namespace web
