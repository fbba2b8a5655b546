#pragma once

#include <array>

#include "cli/findings.h"
#include "cli/text_flaw.h"

// Everything that the check of HTR files can find. docs/formats/htr.md explains the codes; a test
// compares the two.

namespace cli::htr {

// The whole file, by TextFlaw
inline constexpr std::array<FindingRule, 4> kFlaws = {Error("htr-empty"), Error("htr-encoding"),
                                                      Error("htr-line-ends"),
                                                      Error("htr-first-section-lost")};

// Lines
inline constexpr FindingRule kByteOrderMark = Note("htr-byte-order-mark");
inline constexpr FindingRule kNul = Warning("htr-nul");
inline constexpr FindingRule kLineCut = Warning("htr-line-cut");
inline constexpr FindingRule kCarriageReturn = Warning("htr-carriage-return");
inline constexpr FindingRule kCommentInWord = Warning("htr-comment-in-word");
inline constexpr FindingRule kLineBeforeSection = Warning("htr-line-before-section");
inline constexpr FindingRule kAfterEnd = Warning("htr-after-end");
inline constexpr FindingRule kCellsExtra = Note("htr-cells-extra");
inline constexpr FindingRule kEndMissing = Note("htr-end-missing");

// Section lines
inline constexpr FindingRule kSectionIndented = Warning("htr-section-indented");
inline constexpr FindingRule kSectionUnclosed = Note("htr-section-unclosed");
inline constexpr FindingRule kSectionText = Warning("htr-section-text");
inline constexpr FindingRule kSectionMisspelt = Warning("htr-section-misspelt");
inline constexpr FindingRule kSectionUnknown = Warning("htr-section-unknown");

// Header
inline constexpr FindingRule kHeaderMissing = Warning("htr-header-missing");
inline constexpr FindingRule kHeaderLate = Warning("htr-header-late");
inline constexpr FindingRule kKeywordMisspelt = Warning("htr-keyword-misspelt");
inline constexpr FindingRule kKeywordUnknown = Note("htr-keyword-unknown");
inline constexpr FindingRule kKeywordRepeated = Warning("htr-keyword-repeated");
inline constexpr FindingRule kKeywordMissing = Warning("htr-keyword-missing");
inline constexpr FindingRule kKeywordLeftOut = Note("htr-keyword-left-out");
inline constexpr FindingRule kValueExtra = Note("htr-value-extra");
inline constexpr FindingRule kValueRefused = Error("htr-value-refused");
inline constexpr FindingRule kLengthUnitUnknown = Warning("htr-length-unit-unknown");
inline constexpr FindingRule kAngleUnitUnknown = Warning("htr-angle-unit-unknown");
inline constexpr FindingRule kAxisUnknown = Warning("htr-axis-unknown");
inline constexpr FindingRule kAxisIgnored = Warning("htr-axis-ignored");
inline constexpr FindingRule kRateCut = Warning("htr-rate-cut");
inline constexpr FindingRule kRateOutOfRange = Warning("htr-rate-out-of-range");
inline constexpr FindingRule kScaleFactor = Warning("htr-scale-factor");

// Numbers
inline constexpr FindingRule kNumberMissing = Warning("htr-number-missing");
inline constexpr FindingRule kNumberUnreadable = Warning("htr-number-unreadable");
inline constexpr FindingRule kNumberCut = Warning("htr-number-cut");
inline constexpr FindingRule kNumberOutOfRange = Warning("htr-number-out-of-range");

// Hierarchy
inline constexpr FindingRule kSegmentsMissing = Error("htr-segments-missing");
inline constexpr FindingRule kNameTaken = Error("htr-name-taken");
inline constexpr FindingRule kNameInWords = Warning("htr-name-in-words");
inline constexpr FindingRule kNameUnusable = Warning("htr-name-unusable");
inline constexpr FindingRule kParentUnknown = Warning("htr-parent-unknown");
inline constexpr FindingRule kParentCircle = Warning("htr-parent-circle");
inline constexpr FindingRule kRootMissing = Error("htr-root-missing");
inline constexpr FindingRule kRootSecond = Warning("htr-root-second");
inline constexpr FindingRule kSegmentUnlinked = Warning("htr-segment-unlinked");

// Base position
inline constexpr FindingRule kBaseMissing = Error("htr-base-missing");
inline constexpr FindingRule kBaseLate = Warning("htr-base-late");
inline constexpr FindingRule kBaseRepeated = Warning("htr-base-repeated");
inline constexpr FindingRule kBaseLinksStopped = Warning("htr-base-links-stopped");
inline constexpr FindingRule kBaseNameUnknown = Error("htr-base-name-unknown");
inline constexpr FindingRule kBaseLineRepeated = Warning("htr-base-line-repeated");
inline constexpr FindingRule kBaseLineMissing = Warning("htr-base-line-missing");

// Counts and motion
inline constexpr FindingRule kSegmentCount = Error("htr-segment-count");
inline constexpr FindingRule kHierarchyCount = Warning("htr-hierarchy-count");
inline constexpr FindingRule kFrameCount = Warning("htr-frame-count");
inline constexpr FindingRule kFramesUnannounced = Error("htr-frames-unannounced");
inline constexpr FindingRule kFramesTooMany = Error("htr-frames-too-many");
inline constexpr FindingRule kFrameNumber = Warning("htr-frame-number");
inline constexpr FindingRule kMotionMissing = Warning("htr-motion-missing");
inline constexpr FindingRule kMotionRepeated = Warning("htr-motion-repeated");

}  // namespace cli::htr
