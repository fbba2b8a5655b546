#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

// A marker file whose markers have other names. May be called from any thread.
namespace orvane {

// The file `bytes` with the markers that are keys of `names` under the names that they have there.
// All else stays to the byte. Nothing when the line of names, as it is or would be, is longer than
// the reader's pieces. REQUIRES: the reader takes the file, and it has no marker of these other
// names. Throws std::bad_alloc for want of memory.
[[nodiscard]] std::optional<std::string> RenameTrcMarkers(
    std::string_view bytes, const std::map<std::string, std::string>& names);

}  // namespace orvane
