#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "formats/text/byte_source.h"

// The frame rate that a file's text says, of which readers keep the whole part alone. Nothing fails
// but for want of memory. May be called from any thread, each with a source of its own.

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

// The rates that the header of a file says, as the texts of their numbers: "59.94"; empty where it
// says none. `camera`, and `original`, that of the recording which the file was made of, are those
// of marker files.
struct RateTexts {
  std::string data{};
  std::string camera{};
  std::string original{};
};

// Those of a file whose bytes `source` has, of which no more is read than tells them.
[[nodiscard]] RateTexts RateTextsOfHtr(ByteSource& source);
[[nodiscard]] RateTexts RateTextsOfTrc(ByteSource& source);

// The rate of a file whose bytes `source` has, of which no more is read than tells it; nothing when
// its header has none.
[[nodiscard]] std::optional<FrameRate> FrameRateOfHtr(ByteSource& source);
[[nodiscard]] std::optional<FrameRate> FrameRateOfTrc(ByteSource& source);

}  // namespace orvane
