#pragma once

#include "inspect/check/findings.h"

// Everything that the check of mapping files can find. docs/formats/mnm.md explains the codes; a
// test compares the two.

namespace orvane::mnm {

// The whole file
inline constexpr FindingRule kEncoding = ErrorRule("mnm-encoding");
inline constexpr FindingRule kLineEnds = ErrorRule("mnm-line-ends");

// Lines
inline constexpr FindingRule kByteOrderMark = WarningRule("mnm-byte-order-mark");
inline constexpr FindingRule kNul = WarningRule("mnm-nul");
inline constexpr FindingRule kLineCut = WarningRule("mnm-line-cut");
inline constexpr FindingRule kLineBlank = NoteRule("mnm-line-blank");
inline constexpr FindingRule kNameMissing = WarningRule("mnm-name-missing");
inline constexpr FindingRule kRestIgnored = WarningRule("mnm-rest-ignored");
inline constexpr FindingRule kEntriesMissing = ErrorRule("mnm-entries-missing");

// MappingEntries
inline constexpr FindingRule kStandardUnknown = WarningRule("mnm-standard-unknown");
inline constexpr FindingRule kStandardTwice = WarningRule("mnm-standard-twice");
inline constexpr FindingRule kEntryDoubled = NoteRule("mnm-entry-doubled");
inline constexpr FindingRule kEntryShadowed = WarningRule("mnm-entry-shadowed");

// MappingEntries and the markers of a capture
inline constexpr FindingRule kEntryUnused = WarningRule("mnm-entry-unused");
inline constexpr FindingRule kMarkerUnmapped = WarningRule("mnm-marker-unmapped");
inline constexpr FindingRule kMarkerUnmappable = WarningRule("mnm-marker-unmappable");

}  // namespace orvane::mnm
