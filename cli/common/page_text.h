#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/counts/frame_span.h"

// Columns of the pages that the program shows, and what it counts there.

namespace cli {

// The widest column of names; longer names push their lines out.
inline constexpr std::size_t kWidestNames = 60;

// Characters of a UTF-8 text.
[[nodiscard]] std::size_t Width(std::string_view text);

// `text` with blanks behind or before it, so that it is at least `width` characters wide.
[[nodiscard]] std::string PadRight(std::string text, std::size_t width);
[[nodiscard]] std::string PadLeft(const std::string& text, std::size_t width);

// A count and what is counted, in the number that goes with it: "1 frame", "2 frames".
[[nodiscard]] std::string Counted(std::int64_t count, std::string_view noun);

// "25 frames per second".
[[nodiscard]] std::string FramesPerSecond(std::int64_t rate);

// Of a range of frames: "1 to 120 at 25 frames per second"; of one frame, "5 alone, at ...".
[[nodiscard]] std::string FramesAtRate(const orvane::FrameSpan& frames, std::int64_t rate);

// "a, b and c", or "a, b, c and 4 more".
[[nodiscard]] std::string FewOf(const std::vector<std::string>& names);

}  // namespace cli
