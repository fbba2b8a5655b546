#pragma once

#include <array>

#include "cli/findings.h"

// Everything that the check of TRC files can find. docs/formats/trc.md explains the codes; a test
// compares the two.

namespace cli::trc {

// The whole file, by TextFlaw, but for a last one that no marker file has
inline constexpr std::array<FindingRule, 3> kFlaws = {Error("trc-empty"), Error("trc-encoding"),
                                                      Error("trc-line-ends")};

// Lines
inline constexpr FindingRule kByteOrderMark = Note("trc-byte-order-mark");
inline constexpr FindingRule kNul = Warning("trc-nul");
inline constexpr FindingRule kLineCut = Warning("trc-line-cut");
inline constexpr FindingRule kCarriageReturn = Warning("trc-carriage-return");
inline constexpr FindingRule kCarriageReturnSpare = Note("trc-carriage-return-spare");
inline constexpr FindingRule kComment = Warning("trc-comment");
inline constexpr FindingRule kEndUnfinished = Note("trc-end-unfinished");

// Header
inline constexpr FindingRule kFileTypeUnknown = Note("trc-file-type-unknown");
inline constexpr FindingRule kPathTypeUnknown = Warning("trc-path-type-unknown");
inline constexpr FindingRule kTabsMissing = Error("trc-tabs-missing");
inline constexpr FindingRule kCoordinatesRefused = Error("trc-coordinates-refused");
inline constexpr FindingRule kRateCut = Warning("trc-rate-cut");
inline constexpr FindingRule kRateOutOfRange = Warning("trc-rate-out-of-range");
inline constexpr FindingRule kCameraRate = Note("trc-camera-rate");
inline constexpr FindingRule kUnitUnknown = Warning("trc-unit-unknown");
inline constexpr FindingRule kUnitEndsLine = Warning("trc-unit-ends-line");

// Columns
inline constexpr FindingRule kNameLost = Warning("trc-name-lost");
inline constexpr FindingRule kNameEmpty = Warning("trc-name-empty");
inline constexpr FindingRule kColumnUnnamed = Warning("trc-column-unnamed");
inline constexpr FindingRule kColumnRepeated = Warning("trc-column-repeated");
inline constexpr FindingRule kMarkersMissing = Error("trc-markers-missing");
inline constexpr FindingRule kMarkerCount = Warning("trc-marker-count");
inline constexpr FindingRule kSubHeaderMissing = Warning("trc-sub-header-missing");

// Numbers
inline constexpr FindingRule kNumberMissing = Warning("trc-number-missing");
inline constexpr FindingRule kNumberUnreadable = Warning("trc-number-unreadable");
inline constexpr FindingRule kNumberCut = Warning("trc-number-cut");
inline constexpr FindingRule kNumberOutOfRange = Warning("trc-number-out-of-range");

// Frames
inline constexpr FindingRule kFrameBlank = Warning("trc-frame-blank");
inline constexpr FindingRule kFrameShort = Warning("trc-frame-short");
inline constexpr FindingRule kValueExtra = Warning("trc-value-extra");
inline constexpr FindingRule kSampleWithoutX = Warning("trc-sample-without-x");
inline constexpr FindingRule kFirstFrame = Warning("trc-first-frame");
inline constexpr FindingRule kFrameNumber = Warning("trc-frame-number");
inline constexpr FindingRule kFrameCount = Warning("trc-frame-count");
inline constexpr FindingRule kFramesUnannounced = Error("trc-frames-unannounced");
inline constexpr FindingRule kFramesTooMany = Error("trc-frames-too-many");
inline constexpr FindingRule kMarkerGaps = Note("trc-marker-gaps");
inline constexpr FindingRule kMarkerNeverSeen = Warning("trc-marker-never-seen");

}  // namespace cli::trc
