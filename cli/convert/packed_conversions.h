#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/convert/conversion.h"

// Conversions in a form that passes between processes of one program.

namespace cli {

[[nodiscard]] std::string PackConversions(std::vector<Conversion> conversions);

// REQUIRES: `bytes` are of PackConversions.
[[nodiscard]] std::vector<Conversion> UnpackConversions(std::string_view bytes);

}  // namespace cli
