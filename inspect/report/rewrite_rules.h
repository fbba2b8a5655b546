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
    FindingRule{"rewrite-translation-held", FindingSeverity::kWarning},
    FindingRule{"rewrite-frames-held", FindingSeverity::kWarning},
    FindingRule{"rewrite-frame-added", FindingSeverity::kWarning},
    FindingRule{"rewrite-segment-unattached", FindingSeverity::kWarning},
    FindingRule{"rewrite-name-changed", FindingSeverity::kWarning},
    FindingRule{"rewrite-select-ancestors", FindingSeverity::kNote},
    FindingRule{"rewrite-up-doubtful", FindingSeverity::kNote},
    FindingRule{"rewrite-resampled", FindingSeverity::kNote},
    FindingRule{"rewrite-skeleton-lost", FindingSeverity::kNote},
    FindingRule{"rewrite-base-lost", FindingSeverity::kNote},
    FindingRule{"rewrite-unit-lost", FindingSeverity::kNote},
    FindingRule{"rewrite-start-frame-lost", FindingSeverity::kNote},
    FindingRule{"rewrite-time-lost", FindingSeverity::kWarning},
    FindingRule{"rewrite-frames-uncounted", FindingSeverity::kNote},
    FindingRule{"rewrite-coordinate-rounded", FindingSeverity::kNote},
    FindingRule{"rewrite-rate-rounded", FindingSeverity::kNote},
    FindingRule{"rewrite-rate-lost", FindingSeverity::kNote},
    FindingRule{"rewrite-name-encoding", FindingSeverity::kNote},
};

}  // namespace orvane::rewriting
