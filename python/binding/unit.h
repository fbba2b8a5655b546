#pragma once

#include <cstdint>
#include <string>

// Units of length in Python: the keywords of files.

namespace binding {

// The code of `unit`: "mm", "cm", "m", "in", "ft" or "yd". Throws a std::invalid_argument for any
// other word.
[[nodiscard]] std::uint32_t UnitCode(const std::string& unit);

}  // namespace binding
