#include "cli/common/advice.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "cli/common/known_messages.h"

namespace cli {
namespace {

struct Advice {
  KnownMessage message;
  std::string_view text;
};

constexpr Advice kAdvice[] = {
    {KnownMessage::kIncompatibleFileType, "The header of an HTR file says \"FileType HTR\"."},
    {KnownMessage::kIncompatibleDataType,
     "Only files with \"DataType HTRS\" in the header can be read."},
    {KnownMessage::kIncompatibleFileVersion,
     "Only files with \"FileVersion 1\" in the header can be read."},
    {KnownMessage::kIncompatibleRotationOrder,
     "Only files with \"EulerRotationOrder ZYX\" in the header can be read."},
    {KnownMessage::kIncompatibleGravityAxis, "The axis of gravity may be Y or Z."},
    {KnownMessage::kIncompatibleLengthAxis,
     "Only files with \"BoneLengthAxis Y\" in the header can be read."},
    {KnownMessage::kDuplicateSegmentNames,
     "Every line of [SegmentNames&Hierarchy] needs a name of its own, without blanks."},
    {KnownMessage::kSegmentNameNotFound,
     "A line of [BasePosition] starts with a name that [SegmentNames&Hierarchy] does not list; the "
     "message shows what follows that name."},
    {KnownMessage::kIncorrectSegmentCount,
     "\"NumSegments\" in the header must be the number of lines in [BasePosition]. A file that was "
     "cut short says this too."},
    {KnownMessage::kFileWithoutSegments,
     "Is it an HTR file? A file of 0 segments may also have been cut short."},
    {KnownMessage::kIncompatibleCoordinates,
     "The first line of a TRC file is PathFileType, a number, (X/Y/Z) and a file name, with tabs "
     "between them."},
    {KnownMessage::kFileWithoutMarkers,
     "Is it a TRC file? The fourth line names the markers, with three tabs behind each."},
    {KnownMessage::kNoPositionController,
     "The object that a marker is applied to cannot be animated."},
    {KnownMessage::kFileWithoutRoot, "In [SegmentNames&Hierarchy] a root has the parent GLOBAL."},
    {KnownMessage::kStartFrameTooLow, "The range must lie within the frames of the file."},
    {KnownMessage::kEndFrameTooHigh, "The range must lie within the frames of the file."},
    {KnownMessage::kFramesOutOfOrder,
     "Is --range in order, and does \"NumFrames\" in the header announce any frames?"},
    {KnownMessage::kSizeIsZero,
     "--size takes a number that is not 0, such as 1.5; for an HTR file, --segment-size does."},
    {KnownMessage::kScaleIsZero, "--scale takes a number that is not 0, such as 0.1."},
    {KnownMessage::kNothingToApply, "--apply needs --animation or --base-position."},
    {KnownMessage::kNoSkeletonSelected,
     "--into SCENE --select NAME selects in a scene of yours; --create builds a new skeleton."},
    {KnownMessage::kNotFinite,
     "A number of the file, or that of --scale, --size or --segment-size, is too large."},
    {KnownMessage::kScaleFactorIgnored,
     "Lengths are taken as they stand; --scale multiplies them."},
};

// Where these differ from the ones above.
constexpr Advice kExportAdvice[] = {
    {KnownMessage::kStartFrameTooLow,
     "The range must lie within the animation range of the scene."},
    {KnownMessage::kEndFrameTooHigh, "The range must lie within the animation range of the scene."},
    {KnownMessage::kFramesOutOfOrder,
     "Is --range in order, and does the animation range of the scene end after it starts?"},
    {KnownMessage::kNoRootBoneSelected,
     "--select NAME selects a bone; \"orvane scene SCENE\" lists the names."},
    {KnownMessage::kNoBoneToExport,
     "--select NAME takes a bone, or a node that is the parent of one."},
    {KnownMessage::kObjectOffset,
     "The file says where the node is, and not where its object is drawn."},
    {KnownMessage::kIdenticalNames,
     "Every bone needs a name of its own, without blanks; without one it is left out, with all "
     "below it."},
    {KnownMessage::kNoSegmentsToWrite, "Bones with \"Effector\" in their names are left out."},
};

// Of `table`; an empty text when it has none for `message`.
template <typename Table>
std::string_view FindAdvice(const Table& table, KnownMessage message) {
  const auto advice =
      std::find_if(std::begin(table), std::end(table),
                   [message](const Advice& each) { return each.message == message; });
  return advice == std::end(table) ? std::string_view() : advice->text;
}

}  // namespace

std::string AdviceFor(std::string_view message) {
  const std::optional<KnownMessage> known = Recognize(message);
  return known ? std::string(FindAdvice(kAdvice, *known)) : "";
}

std::string AdviceForExport(std::string_view message) {
  const std::optional<KnownMessage> known = Recognize(message);
  if (!known) return "";
  const std::string_view advice = FindAdvice(kExportAdvice, *known);
  return std::string(advice.empty() ? FindAdvice(kAdvice, *known) : advice);
}

}  // namespace cli
