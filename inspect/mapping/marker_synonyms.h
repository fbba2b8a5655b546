#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "inspect/mapping/marker_words.h"

// The names that marker sets of the field use for the places of the standard markers.

namespace orvane {

// The standard marker that `words` name: the place by itself, or by one of its usual names, on the
// side that is named in words or by the first letter of the place. Nothing when they name none, or
// none for sure.
[[nodiscard]] std::optional<std::string> StandardMarkerFor(const MarkerWords& words);

}  // namespace orvane
