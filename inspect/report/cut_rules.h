#pragma once

#include <array>

#include "inspect/check/findings.h"

// What can be said of the frames that are to be cut out of a file, and how bad each is.

namespace orvane::cutting {

inline constexpr std::array kRules = {
    FindingRule{"cut-range-outside", FindingSeverity::kError},
    FindingRule{"cut-range-partly", FindingSeverity::kWarning},
};

}  // namespace orvane::cutting
