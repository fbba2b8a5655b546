#pragma once

#include <array>
#include <string_view>

#include "inspect/check/findings.h"

// Everything that the check of TRC files can find: a row for each rule, by its code. A test
// compares them with docs/formats/trc.md, which explains the codes.

namespace orvane::trc {

inline constexpr auto kRules = std::to_array<FindingRule>({
    // The whole file
    {"trc-other-kind", FindingSeverity::kError},
    {"trc-empty", FindingSeverity::kError},
    {"trc-encoding", FindingSeverity::kError},
    {"trc-cells-quoted", FindingSeverity::kError},
    {"trc-line-ends", FindingSeverity::kError},

    // Lines
    {"trc-byte-order-mark", FindingSeverity::kNote},
    {"trc-nul", FindingSeverity::kWarning},
    {"trc-line-cut", FindingSeverity::kWarning},
    {"trc-carriage-return", FindingSeverity::kWarning},
    {"trc-carriage-return-spare", FindingSeverity::kNote},
    {"trc-comment", FindingSeverity::kWarning},
    {"trc-end-unfinished", FindingSeverity::kNote},

    // Header
    {"trc-file-type-unknown", FindingSeverity::kNote},
    {"trc-path-type-unknown", FindingSeverity::kWarning},
    {"trc-tabs-missing", FindingSeverity::kError},
    {"trc-coordinates-refused", FindingSeverity::kError},
    {"trc-rate-cut", FindingSeverity::kWarning},
    {"trc-rate-out-of-range", FindingSeverity::kWarning},
    {"trc-rate-inexact", FindingSeverity::kNote},
    {"trc-camera-rate", FindingSeverity::kNote},
    {"trc-camera-rate-cut", FindingSeverity::kWarning},
    {"trc-unit-unknown", FindingSeverity::kWarning},
    {"trc-unit-blanks", FindingSeverity::kNote},
    {"trc-unit-ends-line", FindingSeverity::kWarning},

    // Columns
    {"trc-names-misplaced", FindingSeverity::kWarning},
    {"trc-names-headings", FindingSeverity::kWarning},
    {"trc-name-lost", FindingSeverity::kWarning},
    {"trc-name-empty", FindingSeverity::kWarning},
    {"trc-name-with-blank", FindingSeverity::kNote},
    {"trc-name-encoding", FindingSeverity::kWarning},
    {"trc-column-unnamed", FindingSeverity::kWarning},
    {"trc-column-repeated", FindingSeverity::kWarning},
    {"trc-column-repeated-blank", FindingSeverity::kNote},
    {"trc-markers-missing", FindingSeverity::kError},
    {"trc-marker-count", FindingSeverity::kWarning},
    {"trc-columns-misfit", FindingSeverity::kWarning},
    {"trc-sub-header-missing", FindingSeverity::kWarning},

    // Numbers
    {"trc-decimal-commas", FindingSeverity::kWarning},
    {"trc-number-missing", FindingSeverity::kWarning},
    {"trc-number-unreadable", FindingSeverity::kWarning},
    {"trc-number-cut", FindingSeverity::kWarning},
    {"trc-number-out-of-range", FindingSeverity::kWarning},
    {"trc-number-infinite", FindingSeverity::kWarning},

    // Frames
    {"trc-blank-line-tabs", FindingSeverity::kWarning},
    {"trc-frame-blank", FindingSeverity::kWarning},
    {"trc-lines-at-end", FindingSeverity::kNote},
    {"trc-frame-short", FindingSeverity::kWarning},
    {"trc-frame-narrow", FindingSeverity::kWarning},
    {"trc-value-extra", FindingSeverity::kWarning},
    {"trc-sample-without-x", FindingSeverity::kWarning},
    {"trc-first-frame", FindingSeverity::kWarning},
    {"trc-frame-number", FindingSeverity::kWarning},
    {"trc-time-unreadable", FindingSeverity::kNote},
    {"trc-time-differs", FindingSeverity::kNote},
    {"trc-frame-count", FindingSeverity::kWarning},
    {"trc-frames-unannounced", FindingSeverity::kError},
    {"trc-frames-too-many", FindingSeverity::kError},
    {"trc-marker-gaps", FindingSeverity::kNote},
    {"trc-marker-never-seen", FindingSeverity::kWarning},

    // What moves
    {"trc-position-zero", FindingSeverity::kWarning},
    {"trc-position-stand-in", FindingSeverity::kWarning},
    {"trc-position-far", FindingSeverity::kWarning},
    {"trc-size", FindingSeverity::kNote},
    {"trc-up-axis", FindingSeverity::kNote},
});

// The one of `code`.
[[nodiscard]] consteval const FindingRule& Rule(std::string_view code) {
  return FindRule(kRules, code);
}

}  // namespace orvane::trc
