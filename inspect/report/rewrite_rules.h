#pragma once

#include <array>

#include "inspect/check/findings.h"

// What can be said of a file that becomes another one, and how bad each is.

namespace orvane::rewriting {

inline constexpr std::array kRules = {
    FindingRule{"rewrite-select-unknown", FindingSeverity::kError},
    FindingRule{"rewrite-rename-unknown", FindingSeverity::kWarning},
    FindingRule{"rewrite-feet", FindingSeverity::kWarning},
    FindingRule{"rewrite-scale-lost", FindingSeverity::kWarning},
    FindingRule{"rewrite-select-ancestors", FindingSeverity::kNote},
    FindingRule{"rewrite-resampled", FindingSeverity::kNote},
    FindingRule{"rewrite-skeleton-lost", FindingSeverity::kNote},
};

}  // namespace orvane::rewriting
