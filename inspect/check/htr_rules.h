#pragma once

#include <array>
#include <string_view>

#include "inspect/check/findings.h"

// Everything that the check of HTR files can find: a row for each rule, by its code. A test
// compares them with docs/formats/htr.md, which explains the codes.

namespace orvane::htr {

inline constexpr auto kRules = std::to_array<FindingRule>({
    // The whole file
    {"htr-other-kind", FindingSeverity::kError},
    {"htr-empty", FindingSeverity::kError},
    {"htr-encoding", FindingSeverity::kError},
    {"htr-line-ends", FindingSeverity::kError},
    {"htr-first-section-lost", FindingSeverity::kError},

    // Lines
    {"htr-byte-order-mark", FindingSeverity::kNote},
    {"htr-nul", FindingSeverity::kWarning},
    {"htr-line-cut", FindingSeverity::kWarning},
    {"htr-carriage-return", FindingSeverity::kWarning},
    {"htr-comment-in-word", FindingSeverity::kWarning},
    {"htr-line-before-section", FindingSeverity::kWarning},
    {"htr-after-end", FindingSeverity::kWarning},
    {"htr-cells-extra", FindingSeverity::kNote},
    {"htr-numbers-extra", FindingSeverity::kWarning},
    {"htr-end-missing", FindingSeverity::kNote},

    // Section lines
    {"htr-section-indented", FindingSeverity::kWarning},
    {"htr-section-unclosed", FindingSeverity::kNote},
    {"htr-section-text", FindingSeverity::kWarning},
    {"htr-section-misspelt", FindingSeverity::kWarning},
    {"htr-section-unknown", FindingSeverity::kWarning},

    // Header
    {"htr-header-missing", FindingSeverity::kWarning},
    {"htr-header-late", FindingSeverity::kWarning},
    {"htr-keyword-misspelt", FindingSeverity::kWarning},
    {"htr-keyword-unknown", FindingSeverity::kNote},
    {"htr-keyword-repeated", FindingSeverity::kWarning},
    {"htr-keyword-missing", FindingSeverity::kWarning},
    {"htr-keyword-left-out", FindingSeverity::kNote},
    {"htr-value-extra", FindingSeverity::kNote},
    {"htr-value-refused", FindingSeverity::kError},
    {"htr-length-unit-unknown", FindingSeverity::kWarning},
    {"htr-angle-unit-unknown", FindingSeverity::kWarning},
    {"htr-axis-unknown", FindingSeverity::kWarning},
    {"htr-axis-ignored", FindingSeverity::kWarning},
    {"htr-rate-cut", FindingSeverity::kWarning},
    {"htr-rate-out-of-range", FindingSeverity::kWarning},
    {"htr-rate-inexact", FindingSeverity::kNote},
    {"htr-scale-factor", FindingSeverity::kWarning},

    // Numbers
    {"htr-decimal-commas", FindingSeverity::kWarning},
    {"htr-cell-empty", FindingSeverity::kWarning},
    {"htr-number-missing", FindingSeverity::kWarning},
    {"htr-number-unreadable", FindingSeverity::kWarning},
    {"htr-number-cut", FindingSeverity::kWarning},
    {"htr-number-out-of-range", FindingSeverity::kWarning},
    {"htr-number-infinite", FindingSeverity::kWarning},

    // Hierarchy
    {"htr-segments-missing", FindingSeverity::kError},
    {"htr-tabs-missing", FindingSeverity::kError},
    {"htr-name-taken", FindingSeverity::kError},
    {"htr-name-in-words", FindingSeverity::kWarning},
    {"htr-name-encoding", FindingSeverity::kWarning},
    {"htr-name-unusable", FindingSeverity::kWarning},
    {"htr-parent-unknown", FindingSeverity::kWarning},
    {"htr-parent-circle", FindingSeverity::kWarning},
    {"htr-root-missing", FindingSeverity::kError},
    {"htr-root-second", FindingSeverity::kWarning},
    {"htr-segment-unlinked", FindingSeverity::kWarning},

    // Base position
    {"htr-base-missing", FindingSeverity::kError},
    {"htr-base-late", FindingSeverity::kWarning},
    {"htr-base-repeated", FindingSeverity::kWarning},
    {"htr-base-links-stopped", FindingSeverity::kWarning},
    {"htr-base-name-unknown", FindingSeverity::kError},
    {"htr-base-line-repeated", FindingSeverity::kWarning},
    {"htr-base-line-missing", FindingSeverity::kWarning},

    // Counts and motion
    {"htr-segment-count", FindingSeverity::kError},
    {"htr-hierarchy-count", FindingSeverity::kWarning},
    {"htr-frame-count", FindingSeverity::kWarning},
    {"htr-frames-unannounced", FindingSeverity::kError},
    {"htr-frames-too-many", FindingSeverity::kError},
    {"htr-frame-number", FindingSeverity::kWarning},
    {"htr-motion-missing", FindingSeverity::kWarning},
    {"htr-motion-repeated", FindingSeverity::kWarning},

    // What moves
    {"htr-position-far", FindingSeverity::kWarning},
    {"htr-angles-large", FindingSeverity::kNote},
    {"htr-size", FindingSeverity::kNote},
    {"htr-up-axis", FindingSeverity::kNote},
});

// The one of `code`.
[[nodiscard]] consteval const FindingRule& Rule(std::string_view code) {
  return FindRule(kRules, code);
}

}  // namespace orvane::htr
