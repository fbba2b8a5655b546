#pragma once

#include <optional>
#include <string_view>

// The messages that the program has something to add to. The plug-in and the host tell their user
// texts alone; here each of them has a name.

namespace cli {

// What is said of a file that can be read and holds nothing, or nothing to start from.
inline constexpr char kNoSegments[] = "The file holds no segments";
inline constexpr char kNoRoot[] = "The file has no root segment";
inline constexpr char kNoMarkers[] = "The file holds no markers";

enum class KnownMessage {
  // Of the readers and the writer.
  kIncompatibleFileType,
  kIncompatibleDataType,
  kIncompatibleFileVersion,
  kIncompatibleRotationOrder,
  kIncompatibleGravityAxis,
  kIncompatibleLengthAxis,
  kDuplicateSegmentNames,
  kSegmentNameNotFound,
  kIncorrectSegmentCount,
  kIncompatibleCoordinates,
  kNoSegmentsToWrite,

  // Of the program itself.
  kFileWithoutSegments,
  kFileWithoutRoot,
  kFileWithoutMarkers,

  // Of the plug-in's dialogs.
  kStartFrameTooLow,
  kEndFrameTooHigh,
  kFramesOutOfOrder,
  kSizeIsZero,
  kScaleIsZero,
  kNothingToApply,

  // Of the plug-in's importers and exporter.
  kNoSkeletonSelected,
  kScaleFactorIgnored,
  kNoPositionController,
  kNoRootBoneSelected,
  kNoBoneToExport,
  kObjectOffset,
  kIdenticalNames,

  // Of the plug-in's mapping creator.
  kAsksForLeftStick,
  kAsksForRightStick,

  // Of the host.
  kNotFinite,
};

// Which message `text` is; nothing when it is none of them.
[[nodiscard]] std::optional<KnownMessage> Recognize(std::string_view text);

}  // namespace cli
