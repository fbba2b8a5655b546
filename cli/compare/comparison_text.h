#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "inspect/compare/sides.h"

// Pieces of the pages that tell of a comparison.

namespace cli {

inline constexpr std::size_t kNarrowestNames = 16;
inline constexpr std::size_t kNumberWidth = 15;

// "1 marker", "2 markers".
[[nodiscard]] std::string Count(std::size_t count, const std::string& noun);

// "A" or "B".
[[nodiscard]] const char* FileLetter(orvane::WhichFile file);

// The two files, a line each.
[[nodiscard]] std::string FileLines(const std::string& file_a, const std::string& file_b);

// The last cell of a row: the number of a frame, or a dash.
[[nodiscard]] std::string FrameCell(const std::optional<std::int64_t>& frame);

// The width of the column for `names`.
[[nodiscard]] std::size_t WidthOf(const std::vector<std::string>& names);

}  // namespace cli
