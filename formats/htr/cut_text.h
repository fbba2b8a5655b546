#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Some frames of a motion file, as a file of their own. May be called from any thread.
namespace orvane {

// The file `bytes` with none of the frames of its segments but those from `begin` up to `end`:
// their places in a segment, counted from 0, the latter behind the last. Their lines stand as they
// did, and so does all else but for "NumFrames", and for the number of the very first frame, which
// is the one that the reader counts to.
//
// Nothing when a line of a frame, or with "NumFrames", is read in pieces, or when no frame is left.
// REQUIRES: the reader takes the file. Throws std::bad_alloc for want of memory.
[[nodiscard]] std::optional<std::string> CutHtrFrames(std::string_view bytes, std::size_t begin,
                                                      std::size_t end);

}  // namespace orvane
