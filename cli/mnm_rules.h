#pragma once

#include "cli/findings.h"

// Everything that the check of mapping files can find. docs/formats/mnm.md explains the codes; a
// test compares the two.

namespace cli::mnm {

// The whole file
inline constexpr FindingRule kEncoding = Error("mnm-encoding");
inline constexpr FindingRule kLineEnds = Error("mnm-line-ends");

// Lines
inline constexpr FindingRule kByteOrderMark = Warning("mnm-byte-order-mark");
inline constexpr FindingRule kNul = Warning("mnm-nul");
inline constexpr FindingRule kLineCut = Warning("mnm-line-cut");
inline constexpr FindingRule kLineBlank = Note("mnm-line-blank");
inline constexpr FindingRule kNameMissing = Warning("mnm-name-missing");
inline constexpr FindingRule kRestIgnored = Warning("mnm-rest-ignored");
inline constexpr FindingRule kEntriesMissing = Error("mnm-entries-missing");

// Entries
inline constexpr FindingRule kStandardUnknown = Warning("mnm-standard-unknown");
inline constexpr FindingRule kStandardTwice = Warning("mnm-standard-twice");
inline constexpr FindingRule kEntryDoubled = Note("mnm-entry-doubled");
inline constexpr FindingRule kEntryShadowed = Warning("mnm-entry-shadowed");

// Entries and the markers of a capture
inline constexpr FindingRule kEntryUnused = Warning("mnm-entry-unused");
inline constexpr FindingRule kMarkerUnmapped = Warning("mnm-marker-unmapped");
inline constexpr FindingRule kMarkerUnmappable = Warning("mnm-marker-unmappable");

}  // namespace cli::mnm
