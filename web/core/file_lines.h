#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "web/core/take.h"

// Lines of a take's file. Lines and columns count from 1, columns in bytes.

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

}  // namespace web
