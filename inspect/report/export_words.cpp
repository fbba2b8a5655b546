#include "inspect/report/finding_words.h"

namespace orvane {
namespace {

using enum FindingSeverity;

constexpr FindingEffects Exported(FindingSeverity severity, const char* consequence) {
  return {std::array{Action::kExport}, {severity, consequence}};
}

constexpr FindingMeaning kWords[] = {
    {"export-select-unknown", "The scene has no node of the name that --select gives", nullptr,
     Exported(kError, nullptr)},
    {"export-root-missing", "No skeleton of the scene is selected", nullptr,
     Exported(kError,
              "Nothing is exported; --select NAME takes a bone, or a node that is the parent of "
              "one.")},
    {"export-root-effector", "The skeleton begins with an effector", nullptr,
     Exported(kError,
              "Nothing is exported: what has \"Effector\" in its name is left out, and all below "
              "it.")},
    {"export-name-changed", "A bone has a name that means something else in a motion file",
     "{count} bones have names that mean something else in a motion file",
     Exported(kError, "The file would not read back, and is refused; rename the bone.")},
    {"export-name-refused", "A bone has a blank in its name, or the name of another",
     "{count} bones have blanks in their names, or the names of others",
     Exported(kWarning, "Such a bone is left out, with all below it.")},
    {"export-below-helper", "A bone hangs from a node that is no bone",
     "{count} bones hang from nodes that are no bones",
     Exported(kWarning, "Such a bone is left out.")},
    {"export-below-effector", "A bone hangs from an effector", "{count} bones hang from effectors",
     Exported(kWarning, "Such a bone is left out; what has \"Effector\" in its name is one.")},
    {"export-scale-keyed", "The scale of a bone changes", "The scales of {count} bones change",
     Exported(kWarning,
              "The file tells it along X alone, and no import brings it back; what hangs from the "
              "bone stands as along X.")},
    {"export-scale-uneven", "A bone is not scaled alike along its axes",
     "{count} bones are not scaled alike along their axes",
     Exported(kWarning, "The scale along X is taken for all: what hangs from the bone is moved.")},
    {"export-shear", "The axes of a bone are not at right angles",
     "The axes of {count} bones are not at right angles",
     Exported(kWarning, "The file holds turns alone, and not the shear.")},
    {"export-helper-skipped", "A node of the skeleton is no bone",
     "{count} nodes of the skeleton are no bones", Exported(kNote, "Such a node is left out.")},
    {"export-effector", "An effector ends a chain", "{count} effectors end chains",
     Exported(kNote, "Such an effector is left out; the bone before it has its length.")},
    {"export-frames-unkeyed", "{found} exported, and the keys of the skeleton are in {expected}",
     nullptr, Exported(kNote, "In the others it stands still; --range FROM:TO leaves them out.")},
    {"export-rate-assumed", "The keys of the file fall into frames of no rate that it tells",
     nullptr, Exported(kWarning, nullptr)},
    {"export-rate-cut", "The frames are taken at a rate that no motion file of the plug-in has",
     nullptr, Exported(kWarning, nullptr)},
    {"export-keys-between", "A key lies between two frames", "{count} keys lie between frames",
     Exported(kNote, "They are not met exactly; --rate takes other frames.")},
    {"export-animation-chosen", "Another animation of the file moves joints, too",
     "{count} other animations of the file move joints, too", Exported(kNote, nullptr)},
    {"export-joint-renamed", "A joint has a blank in its name, none, or the name of another",
     "{count} joints have blanks in their names, none, or the names of others",
     Exported(kNote,
              "In the motion file a blank is _, and a name that is there twice has a number.")},
};

}  // namespace

std::span<const FindingMeaning> ExportFindingMeanings() { return kWords; }

}  // namespace orvane
