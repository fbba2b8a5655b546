#include "cli/export/export_htr_flags.h"

#include <CLI/CLI.hpp>

#include "cli/common/stored_options.h"

namespace cli {
namespace {

// The controls of the dialog, by their ids.
enum Control : int {
  kFrom = 1065,
  kTo = 1066,
  kSlider = 1067,
  kRange = 1068,
  kGlobalScale = 1088,
  kOffset = 1089,
  kAnimation = 1105,
  kSavedPose = 1106,
  kCurrentPose = 1107,
  kParentTransforms = 1109
};

}  // namespace

void AddExportHtrFlags(CLI::App& verb, Wishes& wishes) {
  CLI::Option* saved = AddRadio(verb, wishes, "--saved-pose", kSavedPose,
                                "Take the base position that an import kept on a bone, where there "
                                "is one (the default)");
  AddRadio(verb, wishes, "--current-pose", kCurrentPose,
           "Take the pose at the scene's current time as the base position")
      ->excludes(saved);
  AddCheckBox(verb, wishes, "animation", kAnimation, "Export every frame (yes)");
  AddCheckBox(verb, wishes, "parent-transforms", kParentTransforms,
              "Keep what the nodes above the root do in the root's motion (yes)");
  AddRange(verb, wishes, {kSlider, kRange, kFrom, kTo}, "--slider",
           "Export the animation range of the scene (the default)", "Export the frames FROM to TO");
  AddText(verb, wishes, "--offset", kOffset, "Add this to the frame numbers in the file (0)");
  AddText(verb, wishes, "--scale", kGlobalScale, "Multiply all lengths by this (1)");
}

ExportChoices ExportChoicesOf(const Wishes& wishes, const host::Settings& settings) {
  const StoredOptions stored(settings, "ExportHTR");
  ExportChoices choices;
  choices.animation =
      WishedState(wishes, kAnimation).value_or(stored.Flag("Animate").value_or(true));
  choices.range = TypedRange(wishes, kFrom, kTo);
  choices.offset = TypedInt(wishes, kOffset).value_or(stored.Int("Offset").value_or(0));
  return choices;
}

}  // namespace cli
