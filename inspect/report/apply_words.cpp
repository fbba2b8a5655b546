#include "inspect/report/finding_words.h"

namespace orvane {
namespace {

using enum FindingSeverity;

constexpr FindingEffects Applied(FindingSeverity severity, const char* consequence = nullptr) {
  return {std::array{Action::kApply}, {severity, consequence}};
}

constexpr FindingEffects Imported(FindingSeverity severity, const char* consequence = nullptr) {
  return {std::array{Action::kImport, Action::kApply}, {severity, consequence}};
}

constexpr FindingMeaning kWords[] = {
    {"apply-select-nothing", "The scene has no node of the name that --select gives",
     "The scene has no nodes of the {count} names that --select gives", Applied(kError)},
    {"apply-range-outside", "--range asks for {found}, and the file has {expected}", nullptr,
     Imported(kError)},
    {"apply-select-unknown", "The scene has no node of a name that --select gives",
     "The scene has no nodes of {count} names that --select gives", Imported(kWarning)},
    {"apply-nothing-selected", "Nothing is selected in the scene", nullptr, Applied(kWarning)},
    {"apply-nothing-matches", "No name of the file is among what it is applied to", nullptr,
     Applied(kWarning)},
    {"apply-name-missing-in-scene", "A name of the file is not among what it is applied to",
     "{count} names of the file are not among what it is applied to", Applied(kWarning)},
    {"apply-start-below-root",
     "A segment of the file is not below {expected}, where the motion starts",
     "{count} segments of the file are not below {expected}, where the motion starts",
     Applied(kWarning)},
    {"apply-markers-share-node", "{found} markers key one node, {expected}", nullptr,
     Applied(kWarning)},
    {"apply-name-missing-in-file", "A name of the scene is not in the file",
     "{count} names of the scene are not in the file",
     Applied(kNote, "What has such a name is not keyed, and stays as it is.")},
    {"apply-root-name-differs", "The motion of {expected} goes to a node of another name", nullptr,
     Applied(kNote, "The node that is selected takes it, whatever its name.")},
    {"apply-bone-differs", "A bone differs from the file's in length or base, by {expected}",
     "{count} bones differ from the file's in length or base, by {expected} at the most",
     Applied(kNote, "Joints move as in the file, and bones keep the lengths that they have.")},
    {"apply-rate-differs",
     "There are {found} frames per second in the file, {expected} in the scene", nullptr,
     Imported(kWarning)},
    {"apply-scene-time", "Viewers are shown {found} frames per second of the scene, and {expected}",
     nullptr, Imported(kWarning)},
    {"apply-range-moves", "--range begins in frame {found}, and the file in frame {expected}",
     nullptr, Imported(kWarning)},
    {"apply-range-partly", "--range asks for {expected} frames, and the file lacks {found} of them",
     nullptr, Imported(kWarning)},
    {"apply-keys-outside-range",
     "Keys come to lie in {found}, and the scene's animation range is then {expected}", nullptr,
     Applied(kWarning).But(Action::kImport, kNote)},
    {"apply-range-shortened", "The scene's animation range was {found}, and is then {expected}",
     nullptr,
     Imported(
         kWarning,
         "Keys outside the new range stay in the scene, and are neither played nor exported.")},
};

}  // namespace

std::span<const FindingMeaning> ApplyFindingMeanings() { return kWords; }

}  // namespace orvane
