#pragma once

#include <array>

#include "inspect/check/findings.h"
#include "inspect/check/text_flaw.h"

// Everything that the check of HTR files can find. docs/formats/htr.md explains the codes; a test
// compares the two.

namespace orvane::htr {

// The whole file, by TextFlaw
inline constexpr std::array<FindingRule, 4> kFlaws = {
    ErrorRule("htr-empty"), ErrorRule("htr-encoding"), ErrorRule("htr-line-ends"),
    ErrorRule("htr-first-section-lost")};

// Lines
inline constexpr FindingRule kByteOrderMark = NoteRule("htr-byte-order-mark");
inline constexpr FindingRule kNul = WarningRule("htr-nul");
inline constexpr FindingRule kLineCut = WarningRule("htr-line-cut");
inline constexpr FindingRule kCarriageReturn = WarningRule("htr-carriage-return");
inline constexpr FindingRule kCommentInWord = WarningRule("htr-comment-in-word");
inline constexpr FindingRule kLineBeforeSection = WarningRule("htr-line-before-section");
inline constexpr FindingRule kAfterEnd = WarningRule("htr-after-end");
inline constexpr FindingRule kCellsExtra = NoteRule("htr-cells-extra");
inline constexpr FindingRule kEndMissing = NoteRule("htr-end-missing");

// Section lines
inline constexpr FindingRule kSectionIndented = WarningRule("htr-section-indented");
inline constexpr FindingRule kSectionUnclosed = NoteRule("htr-section-unclosed");
inline constexpr FindingRule kSectionText = WarningRule("htr-section-text");
inline constexpr FindingRule kSectionMisspelt = WarningRule("htr-section-misspelt");
inline constexpr FindingRule kSectionUnknown = WarningRule("htr-section-unknown");

// Header
inline constexpr FindingRule kHeaderMissing = WarningRule("htr-header-missing");
inline constexpr FindingRule kHeaderLate = WarningRule("htr-header-late");
inline constexpr FindingRule kKeywordMisspelt = WarningRule("htr-keyword-misspelt");
inline constexpr FindingRule kKeywordUnknown = NoteRule("htr-keyword-unknown");
inline constexpr FindingRule kKeywordRepeated = WarningRule("htr-keyword-repeated");
inline constexpr FindingRule kKeywordMissing = WarningRule("htr-keyword-missing");
inline constexpr FindingRule kKeywordLeftOut = NoteRule("htr-keyword-left-out");
inline constexpr FindingRule kValueExtra = NoteRule("htr-value-extra");
inline constexpr FindingRule kValueRefused = ErrorRule("htr-value-refused");
inline constexpr FindingRule kLengthUnitUnknown = WarningRule("htr-length-unit-unknown");
inline constexpr FindingRule kAngleUnitUnknown = WarningRule("htr-angle-unit-unknown");
inline constexpr FindingRule kAxisUnknown = WarningRule("htr-axis-unknown");
inline constexpr FindingRule kAxisIgnored = WarningRule("htr-axis-ignored");
inline constexpr FindingRule kRateCut = WarningRule("htr-rate-cut");
inline constexpr FindingRule kRateOutOfRange = WarningRule("htr-rate-out-of-range");
inline constexpr FindingRule kScaleFactor = WarningRule("htr-scale-factor");

// Numbers
inline constexpr FindingRule kNumberMissing = WarningRule("htr-number-missing");
inline constexpr FindingRule kNumberUnreadable = WarningRule("htr-number-unreadable");
inline constexpr FindingRule kNumberCut = WarningRule("htr-number-cut");
inline constexpr FindingRule kNumberOutOfRange = WarningRule("htr-number-out-of-range");

// Hierarchy
inline constexpr FindingRule kSegmentsMissing = ErrorRule("htr-segments-missing");
inline constexpr FindingRule kNameTaken = ErrorRule("htr-name-taken");
inline constexpr FindingRule kNameInWords = WarningRule("htr-name-in-words");
inline constexpr FindingRule kNameUnusable = WarningRule("htr-name-unusable");
inline constexpr FindingRule kParentUnknown = WarningRule("htr-parent-unknown");
inline constexpr FindingRule kParentCircle = WarningRule("htr-parent-circle");
inline constexpr FindingRule kRootMissing = ErrorRule("htr-root-missing");
inline constexpr FindingRule kRootSecond = WarningRule("htr-root-second");
inline constexpr FindingRule kSegmentUnlinked = WarningRule("htr-segment-unlinked");

// Base position
inline constexpr FindingRule kBaseMissing = ErrorRule("htr-base-missing");
inline constexpr FindingRule kBaseLate = WarningRule("htr-base-late");
inline constexpr FindingRule kBaseRepeated = WarningRule("htr-base-repeated");
inline constexpr FindingRule kBaseLinksStopped = WarningRule("htr-base-links-stopped");
inline constexpr FindingRule kBaseNameUnknown = ErrorRule("htr-base-name-unknown");
inline constexpr FindingRule kBaseLineRepeated = WarningRule("htr-base-line-repeated");
inline constexpr FindingRule kBaseLineMissing = WarningRule("htr-base-line-missing");

// Counts and motion
inline constexpr FindingRule kSegmentCount = ErrorRule("htr-segment-count");
inline constexpr FindingRule kHierarchyCount = WarningRule("htr-hierarchy-count");
inline constexpr FindingRule kFrameCount = WarningRule("htr-frame-count");
inline constexpr FindingRule kFramesUnannounced = ErrorRule("htr-frames-unannounced");
inline constexpr FindingRule kFramesTooMany = ErrorRule("htr-frames-too-many");
inline constexpr FindingRule kFrameNumber = WarningRule("htr-frame-number");
inline constexpr FindingRule kMotionMissing = WarningRule("htr-motion-missing");
inline constexpr FindingRule kMotionRepeated = WarningRule("htr-motion-repeated");

}  // namespace orvane::htr
