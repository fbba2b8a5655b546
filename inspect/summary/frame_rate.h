#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

// The frame rate that a file's text says, of which readers keep the whole part alone. Nothing fails
// but for want of memory.

namespace orvane {

// Frames per second as a fraction in lowest terms; both numbers are from 1 to 2^53.
struct FrameRate {
  std::int64_t numerator = 1;
  std::int64_t denominator = 1;

  friend bool operator==(const FrameRate&, const FrameRate&) = default;
};

// The decimal fraction that `text` starts with, as it stands: 2997/50 for "59.94". Digits behind
// the point that do not fit are left out. Nothing when it is not positive, or does not fit at all.
[[nodiscard]] std::optional<FrameRate> ParseFrameRate(std::string_view text);

// That of a file by its `bytes`; nothing when its header has none.
[[nodiscard]] std::optional<FrameRate> FrameRateOfHtr(std::string_view bytes);
[[nodiscard]] std::optional<FrameRate> FrameRateOfTrc(std::string_view bytes);

}  // namespace orvane
