#pragma once

#include <cstddef>
#include <string_view>

// How far the line of a frame reaches. Fields, which single tabs part, count from 1. Nothing fails.
// May be called from any thread.
namespace orvane {

struct TRCRowWidth {
  std::size_t fields = 0;
  std::size_t last_value = 0;  // the last field that is not blank; 0 for a blank line

  friend bool operator==(const TRCRowWidth&, const TRCRowWidth&) = default;
};

// That of a line, `text`, which has no line break.
[[nodiscard]] TRCRowWidth WidthOf(std::string_view text);

// The same of one that is known to have so many `fields`.
[[nodiscard]] TRCRowWidth WidthOf(std::string_view text, std::size_t fields);

}  // namespace orvane
