#pragma once

#include <array>

#include "inspect/check/findings.h"

// Everything that the check of TRC files can find. docs/formats/trc.md explains the codes; a test
// compares the two.

namespace orvane::trc {

// The whole file, by TextFlaw, but for a last one that no marker file has
inline constexpr std::array<FindingRule, 3> kFlaws = {
    ErrorRule("trc-empty"), ErrorRule("trc-encoding"), ErrorRule("trc-line-ends")};

// Lines
inline constexpr FindingRule kByteOrderMark = NoteRule("trc-byte-order-mark");
inline constexpr FindingRule kNul = WarningRule("trc-nul");
inline constexpr FindingRule kLineCut = WarningRule("trc-line-cut");
inline constexpr FindingRule kCarriageReturn = WarningRule("trc-carriage-return");
inline constexpr FindingRule kCarriageReturnSpare = NoteRule("trc-carriage-return-spare");
inline constexpr FindingRule kComment = WarningRule("trc-comment");
inline constexpr FindingRule kEndUnfinished = NoteRule("trc-end-unfinished");

// Header
inline constexpr FindingRule kFileTypeUnknown = NoteRule("trc-file-type-unknown");
inline constexpr FindingRule kPathTypeUnknown = WarningRule("trc-path-type-unknown");
inline constexpr FindingRule kTabsMissing = ErrorRule("trc-tabs-missing");
inline constexpr FindingRule kCoordinatesRefused = ErrorRule("trc-coordinates-refused");
inline constexpr FindingRule kRateCut = WarningRule("trc-rate-cut");
inline constexpr FindingRule kRateOutOfRange = WarningRule("trc-rate-out-of-range");
inline constexpr FindingRule kCameraRate = NoteRule("trc-camera-rate");
inline constexpr FindingRule kUnitUnknown = WarningRule("trc-unit-unknown");
inline constexpr FindingRule kUnitEndsLine = WarningRule("trc-unit-ends-line");

// Columns
inline constexpr FindingRule kNameLost = WarningRule("trc-name-lost");
inline constexpr FindingRule kNameEmpty = WarningRule("trc-name-empty");
inline constexpr FindingRule kColumnUnnamed = WarningRule("trc-column-unnamed");
inline constexpr FindingRule kColumnRepeated = WarningRule("trc-column-repeated");
inline constexpr FindingRule kMarkersMissing = ErrorRule("trc-markers-missing");
inline constexpr FindingRule kMarkerCount = WarningRule("trc-marker-count");
inline constexpr FindingRule kSubHeaderMissing = WarningRule("trc-sub-header-missing");

// Numbers
inline constexpr FindingRule kNumberMissing = WarningRule("trc-number-missing");
inline constexpr FindingRule kNumberUnreadable = WarningRule("trc-number-unreadable");
inline constexpr FindingRule kNumberCut = WarningRule("trc-number-cut");
inline constexpr FindingRule kNumberOutOfRange = WarningRule("trc-number-out-of-range");

// Frames
inline constexpr FindingRule kFrameBlank = WarningRule("trc-frame-blank");
inline constexpr FindingRule kFrameShort = WarningRule("trc-frame-short");
inline constexpr FindingRule kValueExtra = WarningRule("trc-value-extra");
inline constexpr FindingRule kSampleWithoutX = WarningRule("trc-sample-without-x");
inline constexpr FindingRule kFirstFrame = WarningRule("trc-first-frame");
inline constexpr FindingRule kFrameNumber = WarningRule("trc-frame-number");
inline constexpr FindingRule kFrameCount = WarningRule("trc-frame-count");
inline constexpr FindingRule kFramesUnannounced = ErrorRule("trc-frames-unannounced");
inline constexpr FindingRule kFramesTooMany = ErrorRule("trc-frames-too-many");
inline constexpr FindingRule kMarkerGaps = NoteRule("trc-marker-gaps");
inline constexpr FindingRule kMarkerNeverSeen = WarningRule("trc-marker-never-seen");

}  // namespace orvane::trc
