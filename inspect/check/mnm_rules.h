#pragma once

#include <array>
#include <string_view>

#include "inspect/check/findings.h"

// Everything that the check of mapping files can find: a row for each rule, by its code. A test
// compares them with docs/formats/mnm.md, which explains the codes.

namespace orvane::mnm {

inline constexpr auto kRules = std::to_array<FindingRule>({
    // The whole file
    {"mnm-other-kind", FindingSeverity::kError},
    {"mnm-encoding", FindingSeverity::kError},
    {"mnm-line-ends", FindingSeverity::kError},

    // Lines
    {"mnm-byte-order-mark", FindingSeverity::kWarning},
    {"mnm-nul", FindingSeverity::kWarning},
    {"mnm-line-cut", FindingSeverity::kWarning},
    {"mnm-line-blank", FindingSeverity::kNote},
    {"mnm-name-missing", FindingSeverity::kWarning},
    {"mnm-name-encoding", FindingSeverity::kWarning},
    {"mnm-rest-ignored", FindingSeverity::kWarning},
    {"mnm-entries-missing", FindingSeverity::kError},

    // Entries
    {"mnm-standard-unknown", FindingSeverity::kWarning},
    {"mnm-standard-twice", FindingSeverity::kWarning},
    {"mnm-entry-doubled", FindingSeverity::kNote},
    {"mnm-entry-shadowed", FindingSeverity::kWarning},

    // Entries and the markers of a capture
    {"mnm-fits-nothing", FindingSeverity::kError},
    {"mnm-name-shared", FindingSeverity::kWarning},
    {"mnm-entry-unused", FindingSeverity::kWarning},
    {"mnm-marker-unmapped", FindingSeverity::kWarning},
    {"mnm-marker-unmappable", FindingSeverity::kWarning},
});

// The one of `code`.
[[nodiscard]] consteval const FindingRule& Rule(std::string_view code) {
  return FindRule(kRules, code);
}

}  // namespace orvane::mnm
