#pragma once

#include <optional>
#include <string>
#include <string_view>

// Marker files whose heights lie along Z, as text with heights along Y, which is what readers take.
// May be called from any thread.
namespace orvane {

// The file `bytes`, turned by a quarter about X: of each position x, y, z the cells become x, z,
// -y. They change their places and a sign, and none of their digits; all else stays to the byte.
// Cells that are no numbers keep what they are. Nothing when a line with a frame is longer than the
// reader's pieces, or would be. Throws std::bad_alloc for want of memory.
[[nodiscard]] std::optional<std::string> TurnZUp(std::string_view bytes);

}  // namespace orvane
