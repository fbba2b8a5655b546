#pragma once

#include <array>

#include "inspect/check/findings.h"

// What can be said of a file and the scene that it is applied to, and how bad each is.

namespace orvane::apply {

inline constexpr std::array kRules = {
    FindingRule{"apply-select-nothing", FindingSeverity::kError},
    FindingRule{"apply-range-outside", FindingSeverity::kError},
    FindingRule{"apply-select-unknown", FindingSeverity::kWarning},
    FindingRule{"apply-nothing-selected", FindingSeverity::kWarning},
    FindingRule{"apply-nothing-matches", FindingSeverity::kWarning},
    FindingRule{"apply-name-missing-in-scene", FindingSeverity::kWarning},
    FindingRule{"apply-start-below-root", FindingSeverity::kWarning},
    FindingRule{"apply-markers-share-node", FindingSeverity::kWarning},
    FindingRule{"apply-name-missing-in-file", FindingSeverity::kNote},
    FindingRule{"apply-root-name-differs", FindingSeverity::kNote},
    FindingRule{"apply-bone-differs", FindingSeverity::kNote},
    FindingRule{"apply-rate-differs", FindingSeverity::kWarning},
    FindingRule{"apply-range-moves", FindingSeverity::kWarning},
    FindingRule{"apply-range-partly", FindingSeverity::kWarning},
    FindingRule{"apply-keys-outside-range", FindingSeverity::kWarning},
    FindingRule{"apply-range-shortened", FindingSeverity::kWarning},
    FindingRule{"apply-scene-time", FindingSeverity::kWarning},
};

}  // namespace orvane::apply
