#pragma once

#include <cstddef>
#include <span>
#include <string>

// Which markers a mapping can tell from others. Nothing fails. May be called from any thread.

namespace orvane {

// Whether an entry of a mapping can be of the marker `names[marker]`, and of no other of `names`.
// Takes time in proportion to the names.
[[nodiscard]] bool CanBeMapped(std::span<const std::string> names, std::size_t marker);

}  // namespace orvane
