#pragma once

#include <array>

#include "inspect/check/findings.h"

// What can be said of a skeleton that becomes a motion file, and how bad each is.

namespace orvane::exporting {

inline constexpr std::array kRules = {
    FindingRule{"export-select-unknown", FindingSeverity::kError},
    FindingRule{"export-root-missing", FindingSeverity::kError},
    FindingRule{"export-root-effector", FindingSeverity::kError},
    FindingRule{"export-name-changed", FindingSeverity::kError},
    FindingRule{"export-name-refused", FindingSeverity::kWarning},
    FindingRule{"export-below-helper", FindingSeverity::kWarning},
    FindingRule{"export-below-effector", FindingSeverity::kWarning},
    FindingRule{"export-scale-keyed", FindingSeverity::kWarning},
    FindingRule{"export-scale-uneven", FindingSeverity::kWarning},
    FindingRule{"export-shear", FindingSeverity::kWarning},
    FindingRule{"export-helper-skipped", FindingSeverity::kNote},
    FindingRule{"export-effector", FindingSeverity::kNote},
    FindingRule{"export-frames-unkeyed", FindingSeverity::kNote},
    FindingRule{"export-rate-assumed", FindingSeverity::kWarning},
    FindingRule{"export-rate-cut", FindingSeverity::kWarning},
    FindingRule{"export-keys-between", FindingSeverity::kNote},
    FindingRule{"export-animation-chosen", FindingSeverity::kNote},
    FindingRule{"export-joint-renamed", FindingSeverity::kNote},
};

}  // namespace orvane::exporting
