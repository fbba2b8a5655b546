#include "cli/export/export_htr_flags.h"

#include <CLI/CLI.hpp>

#include "cli/common/stored_options.h"
#include "plugin/resources/resource.h"

namespace cli {
void AddExportHtrFlags(CLI::App& verb, Wishes& wishes) {
  CLI::Option* saved = AddRadio(verb, wishes, "--saved-pose", IDC_SAVED_POSE,
                                "Take the base position that an import kept on a bone, where there "
                                "is one (the default)");
  AddRadio(verb, wishes, "--current-pose", IDC_CURRENT_POSE,
           "Take the pose at the scene's current time as the base position")
      ->excludes(saved);
  AddCheckBox(verb, wishes, "animation", IDC_EXPORT_ANIMATION, "Export every frame (yes)");
  AddCheckBox(verb, wishes, "parent-transforms", IDC_PARENT_TRANSFORMS,
              "Keep what the nodes above the root do in the root's motion (yes)");
  AddRange(verb, wishes, {IDC_SLIDER, IDC_RANGE, IDC_FROM, IDC_TO}, "--slider",
           "Export the animation range of the scene (the default)", "Export the frames FROM to TO");
  AddInteger(verb, wishes, "--offset", IDC_OFFSET,
             "Add this to the frame numbers in the file, a whole number of 32 bits (0)");
  AddText(verb, wishes, "--scale", IDC_GLOBAL_SCALE, "Multiply all lengths by this (1)");
}

ExportChoices ExportChoicesOf(const Wishes& wishes, const host::Settings& settings) {
  const StoredOptions stored(settings, IDS_EXPORT_HTR);
  ExportChoices choices;
  choices.animation =
      WishedState(wishes, IDC_EXPORT_ANIMATION).value_or(stored.Flag("Animate").value_or(true));
  choices.parent_transforms = WishedState(wishes, IDC_PARENT_TRANSFORMS)
                                  .value_or(stored.Flag("ParentTransforms").value_or(true));
  choices.range = TypedRange(wishes, IDC_FROM, IDC_TO);
  choices.offset = TypedInt(wishes, IDC_OFFSET).value_or(stored.Int("Offset").value_or(0));
  return choices;
}

}  // namespace cli
