#include "cli/common/known_messages.h"

#include "formats/htr/messages.h"
#include "formats/trc/messages.h"
#include "host/gltf/file/refusal.h"

namespace cli {
namespace {

// A header value that the HTR reader refuses, by its keyword.
struct HeaderMessage {
  KnownMessage message;
  std::string_view keyword;
};

constexpr HeaderMessage kHeaderMessages[] = {
    {KnownMessage::kIncompatibleFileType, "FileType"},
    {KnownMessage::kIncompatibleDataType, "DataType"},
    {KnownMessage::kIncompatibleFileVersion, "FileVersion"},
    {KnownMessage::kIncompatibleRotationOrder, "EulerRotationOrder"},
    {KnownMessage::kIncompatibleGravityAxis, "GlobalAxisofGravity"},
    {KnownMessage::kIncompatibleLengthAxis, "BoneLengthAxis"},
};

struct MessageForm {
  KnownMessage message;
  std::string_view start;  // all of it, unless there is a name or a number behind it
  std::string_view end;    // what stands behind that
};

// The texts of the plug-in itself are spelled here, as it shows them.
constexpr MessageForm kForms[] = {
    {KnownMessage::kDuplicateSegmentNames, orvane::kDuplicateSegmentNames, ""},
    {KnownMessage::kDuplicateSegmentNames, orvane::kDuplicateNamesToWrite, ""},
    {KnownMessage::kSegmentNameNotFound, orvane::kSegmentNameNotFound, ""},
    {KnownMessage::kIncorrectSegmentCount, orvane::kIncorrectSegmentCount, ""},
    {KnownMessage::kIncompatibleCoordinates, orvane::kIncompatibleCoordinates, ""},
    {KnownMessage::kNoSegmentsToWrite, orvane::kNoSegmentsToWrite, ""},
    {KnownMessage::kFileWithoutSegments, kNoSegments, ""},
    {KnownMessage::kFileWithoutRoot, kNoRoot, ""},
    {KnownMessage::kFileWithoutMarkers, kNoMarkers, ""},
    {KnownMessage::kStartFrameTooLow, "Please choose a start frame equal to or greater than ", "."},
    {KnownMessage::kEndFrameTooHigh, "Please choose an end frame less than or equal to ", "."},
    {KnownMessage::kFramesOutOfOrder,
     "Please choose a start frame that is less than the end frame.", ""},
    {KnownMessage::kSizeIsZero, "Please choose a non-zero size.", ""},
    {KnownMessage::kScaleIsZero, "Please choose a non-zero scale factor.", ""},
    {KnownMessage::kNothingToApply,
     "Please choose either Base Position, Animation, or both when in apply mode.", ""},
    {KnownMessage::kNoSkeletonSelected,
     "Please select the root of a skeleton before applying animation.", ""},
    {KnownMessage::kScaleFactorIgnored,
     "ScaleFactor is not 1.0, this plugin does not support the ScaleFactor header variable.", ""},
    {KnownMessage::kNoPositionController,
     "Position Controller Error. Please Contact Orvane Support.", ""},
    {KnownMessage::kNoRootBoneSelected,
     "Please select the root bone of the skeleton you wish to export", ""},
    {KnownMessage::kNoBoneToExport, "Please select a Skelder 4 bone object to export", ""},
    {KnownMessage::kObjectOffset, "Bone: ",
     " contains an object offset transformation, the resulting skeleton may not be correct."},
    {KnownMessage::kIdenticalNames, "There are multiple identical names or spaces in a bone name.",
     ""},
    {KnownMessage::kAsksForLeftStick, "Are you using a left wrist stick?", ""},
    {KnownMessage::kAsksForRightStick, "Are you using a right wrist stick?", ""},
    {KnownMessage::kNotFinite, "Node \"", host::gltf::kIsNotFinite},
};

bool Fits(std::string_view text, const MessageForm& form) {
  return text.size() >= form.start.size() + form.end.size() && text.starts_with(form.start) &&
         text.ends_with(form.end);
}

}  // namespace

std::optional<KnownMessage> Recognize(std::string_view text) {
  for (const HeaderMessage& each : kHeaderMessages) {
    if (text == orvane::IncompatibleHeader(each.keyword)) return each.message;
  }
  for (const MessageForm& form : kForms) {
    if (Fits(text, form)) return form.message;
  }
  return std::nullopt;
}

}  // namespace cli
