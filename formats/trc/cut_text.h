#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

// Some frames of a marker file, as a file of their own. May be called from any thread.
namespace orvane {

// The file `bytes` with none of its frames but those from `begin` up to `end`: their places in the
// file, counted from 0, the latter behind the last. Their lines stand as they did, and so does all
// else but for the number of frames in the header, and for the first frame's number, which is the
// one that the reader gave it. That stands in the header when the data do not tell it.
//
// Nothing when a line that would change, or the frame behind the last, is read in pieces.
// REQUIRES: the reader takes the file, and begin < end <= its frames. Throws std::bad_alloc for
// want of memory.
[[nodiscard]] std::optional<std::string> CutTrcFrames(std::string_view bytes, std::size_t begin,
                                                      std::size_t end);

}  // namespace orvane
