#include "formats/mnm/standard_markers.h"

namespace orvane {
namespace {

constexpr bool kNeeded = false;
constexpr bool kOptional = true;

// A wrist without a stick carries two markers, one with a stick the stick's two.
constexpr std::array<MarkerStep, kMarkerSteps> kSteps = {{
    {{{{"LFHD", "Left front head marker (LFHD)"}}}, kNeeded},
    {{{{"LBHD", "Left back head marker (LBHD)"}}}, kNeeded},
    {{{{"RBHD", "Right back head marker (RBHD)"}}}, kNeeded},
    {{{{"RFHD", "Right front head marker (RFHD)"}}}, kNeeded},
    {{{{"C7", "Top of spine marker (C7)"}}}, kNeeded},
    {{{{"CLAV", "Top chest marker (CLAV)"}}}, kNeeded},
    {{{{"STRN", "Center sternum marker (STRN)"}}}, kNeeded},
    {{{{"LSHO", "Left shoulder marker (LSHO)"}}}, kNeeded},
    {{{{"LELB", "Left outer elbow marker (LELB)"}}}, kNeeded},
    {{{{"LILB", "Left inner elbow marker (LILB)"}}}, kOptional},
    {{{{"LWRA", "Left wrist inner (near thumb) marker (LWRA)"},
       {"LWRB", "Left wrist outer (near pinky) marker (LWRB)"}}},
     kNeeded},
    {{{{"LFIN", "Left hand marker (LFIN)"}}}, kNeeded},
    {{{{"RSHO", "Right shoulder marker (RSHO)"}}}, kNeeded},
    {{{{"RELB", "Right outer elbow marker (RELB)"}}}, kNeeded},
    {{{{"RILB", "Right inner elbow marker (RILB)"}}}, kOptional},
    {{{{"RWRA", "Right wrist inner (near thumb) marker (RWRA)"},
       {"RWRB", "Right wrist outer (near pinky) marker (RWRB)"}}},
     kNeeded},
    {{{{"RFIN", "Right hand marker (RFIN)"}}}, kNeeded},
    {{{{"T10", "Middle of back marker (T10)"}}}, kNeeded},
    {{{{"SACR", "Lower back marker (SACR)"}}}, kOptional},
    {{{{"LFWT", "Left front waist marker (LFWT)"}}}, kNeeded},
    {{{{"LBWT", "Left back waist marker (LBWT)"}}}, kNeeded},
    {{{{"RBWT", "Right back waist marker (RBWT)"}}}, kNeeded},
    {{{{"RFWT", "Right front waist marker (RFWT)"}}}, kNeeded},
    {{{{"LKNE", "Left outer knee marker (LKNE)"}}}, kNeeded},
    {{{{"LKNI", "Left inner knee marker (LKNI)"}}}, kOptional},
    {{{{"LANK", "Left outer ankle marker (LANK)"}}}, kNeeded},
    {{{{"LHEL", "Left heel marker (LHEL)"}}}, kOptional},
    {{{{"LMT5", "Left outer metatarsal marker (LMT5)"}}}, kNeeded},
    {{{{"LMTI", "Left inner metatarsal marker (LMTI)"}}}, kOptional},
    {{{{"LTOE", "Left toe marker (LTOE)"}}}, kNeeded},
    {{{{"RKNE", "Right outer knee marker (RKNE)"}}}, kNeeded},
    {{{{"RKNI", "Right inner knee marker (RKNI)"}}}, kOptional},
    {{{{"RANK", "Right outer ankle marker (RANK)"}}}, kNeeded},
    {{{{"RHEL", "Right heel marker (RHEL)"}}}, kOptional},
    {{{{"RMT5", "Right outer metatarsal marker (RMT5)"}}}, kNeeded},
    {{{{"RMTI", "Right inner metatarsal marker (RMTI)"}}}, kOptional},
    {{{{"RTOE", "Right toe marker (RTOE)"}}}, kNeeded},
    {{{{"LPRPB", "Left prop bottom (LPRPB)"}}}, kOptional},
    {{{{"LPRPM", "Left prop middle (LPRPM)"}}}, kOptional},
    {{{{"LPRPT", "Left prop top (LPRPT)"}}}, kOptional},
    {{{{"RPRPB", "Right prop bottom (RPRPB)"}}}, kOptional},
    {{{{"RPRPM", "Right prop middle (RPRPM)"}}}, kOptional},
    {{{{"RPRPT", "Right prop top (RPRPT)"}}}, kOptional},
}};

constexpr MarkerStep kLeftStick = {{{{"LWRE", "Left wrist stick end marker (LWRE)"},
                                     {"LWRI", "Left wrist stick base marker (LWRI)"}}},
                                   kNeeded};

constexpr MarkerStep kRightStick = {{{{"RWRE", "Right wrist stick end marker (RWRE)"},
                                      {"RWRI", "Right wrist stick base marker (RWRI)"}}},
                                    kNeeded};

// The first marker that any step asks for and that `is_meant`; null when there is none.
template <typename Meaning>
const StandardMarker* FindMarker(const Meaning& is_meant) {
  const auto find_in = [&is_meant](const MarkerStep& step) -> const StandardMarker* {
    for (std::size_t index = 0; index < step.Count(); ++index) {
      if (is_meant(step.markers.at(index))) return &step.markers.at(index);
    }
    return nullptr;
  };
  for (const MarkerStep& step : kSteps) {
    if (const StandardMarker* const found = find_in(step)) return found;
  }
  if (const StandardMarker* const found = find_in(kLeftStick)) return found;
  return find_in(kRightStick);
}

}  // namespace

const MarkerStep& MarkerStepAt(std::size_t index, const WristSticks& sticks) {
  if (index == kLeftWristStep && sticks.left) return kLeftStick;
  if (index == kRightWristStep && sticks.right) return kRightStick;
  return kSteps.at(index);
}

bool IsStandardMarker(std::string_view name) {
  return FindMarker([name](const StandardMarker& marker) { return marker.name == name; }) !=
         nullptr;
}

std::string_view StandardNameOf(std::string_view description) {
  const StandardMarker* const found = FindMarker(
      [description](const StandardMarker& marker) { return marker.description == description; });
  return found == nullptr ? "" : found->name;
}

}  // namespace orvane
