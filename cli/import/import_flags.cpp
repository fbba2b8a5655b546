#include "cli/import/import_flags.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/common/choice.h"
#include "cli/common/dialog_flags.h"
#include "cli/common/stored_options.h"
#include "plugin/resources/resource.h"

namespace cli {
namespace {

using Kind = ControlWish::Kind;

constexpr Disabler kWhileApplying{IDC_APPLY, "--create"};
constexpr Disabler kWhileCreating{IDC_CREATE, "--apply"};

ControlWish FrameRate(const std::string& choice) {
  return {Kind::kCheckBox, IDC_SET_FRAME_RATE, "--frame-rate", "", choice == "file", {}};
}

void AddTargetFlags(CLI::App& verb, Wishes& wishes) {
  CLI::Option* create = AddRadio(verb, wishes, "--create", IDC_CREATE,
                                 "Create a new skeleton or cloud (the default)");
  AddRadio(verb, wishes, "--apply", IDC_APPLY, "Apply the motion to objects of the scene")
      ->excludes(create);
}

void AddSkeletonFlags(CLI::App& verb, Wishes& wishes, CLI::Option* size) {
  AddText(verb, wishes, "--segment-size", IDC_OBJECT_SIZE,
          "HTR: thickness of the bones, 1 being a fifth of their length (1)", kWhileApplying)
      ->excludes(size);
  AddCheckBox(verb, wishes, "end-effectors", IDC_END_EFFECTORS,
              "HTR: create end effectors at the ends of the skeleton (no)", kWhileApplying);
  AddCheckBox(verb, wishes, "animation", IDC_ANIMATION,
              "HTR: set keys for the frames of the file (yes)");
  AddCheckBox(verb, wishes, "base-position", IDC_BASE_POSITION,
              "HTR: set keys for the base position, one frame before the motion (no)");
  CLI::Option* euler = AddRadio(verb, wishes, "--euler", IDC_EULER,
                                "HTR: rotate by Euler controllers (the default)");
  AddRadio(verb, wishes, "--tcb", IDC_TCB, "HTR: rotate by TCB controllers")->excludes(euler);
}

void AddCloudFlags(CLI::App& verb, Wishes& wishes) {
  CLI::Option* sphere =
      AddFlag(verb, wishes, {Kind::kRadio, IDC_SPHERE, "--sphere", "", false, kWhileApplying},
              "TRC: make markers spheres (the default)");
  AddFlag(verb, wishes, {Kind::kRadio, IDC_POINT, "--point", "", false, kWhileApplying},
          "TRC: make markers points")
      ->excludes(sphere);
  AddCheckBox(verb, wishes, "selected-only", IDC_SELECTED_ONLY,
              "TRC: apply to selected objects only (no)", kWhileCreating);
  AddCheckBox(verb, wishes, "root-node", IDC_ROOT_NODE, "TRC: group the markers under a node (no)",
              kWhileApplying);
}

void AddTimeFlags(CLI::App& verb, Wishes& wishes) {
  AddRange(verb, wishes, {IDC_ALL, IDC_RANGE, IDC_FROM, IDC_TO}, "--all",
           "Import all frames (the default)",
           "Import the frames FROM to TO of a TRC file; key the first frames of an HTR file "
           "there");
  AddInteger(verb, wishes, "--offset", IDC_OFFSET,
             "Number of frames to move the keys by, a whole number of 32 bits (0)");
  AddChoice(
      verb, "--frame-rate", {"file", "keep"},
      "Set the scene's frame rate from the file, or keep the scene's (file; keep with --into)",
      [&wishes](const std::string& choice) { wishes.push_back(FrameRate(choice)); });
}

}  // namespace

void AddImportFlags(CLI::App& verb, std::vector<ControlWish>& wishes) {
  AddTargetFlags(verb, wishes);
  CLI::Option* size = AddText(
      verb, wishes, "--size", IDC_OBJECT_SIZE,
      "Size of new objects, twice the radius of a marker, such as 2 or 25mm (TRC: what fits them)",
      kWhileApplying);
  AddSkeletonFlags(verb, wishes, size);
  AddCloudFlags(verb, wishes);
  AddTimeFlags(verb, wishes);
  AddText(verb, wishes, "--scale", IDC_GLOBAL_SCALE, "Multiply all lengths by this (1)");
}

ControlWish FrameRateFromFile() { return FrameRate("file"); }

bool MentionFrameRate(const std::vector<ControlWish>& wishes) {
  return std::any_of(wishes.begin(), wishes.end(),
                     [](const ControlWish& wish) { return wish.control == IDC_SET_FRAME_RATE; });
}

orvane::FrameSpan ImportChoices::Keyed(const orvane::FrameSpan& announced) const {
  if (!animation) return {};
  return range ? Overlap(*range, announced) : announced;
}

ImportChoices ChoicesOf(const Wishes& wishes, FileKind kind, const host::Settings& settings) {
  const bool is_htr = kind == FileKind::kHtr;
  const StoredOptions stored(settings, is_htr ? IDS_IMPORT_HTR : IDS_IMPORT_TRC);
  const auto choice = [&](int control, const char* name, bool otherwise) {
    return WishedState(wishes, control).value_or(stored.Flag(name).value_or(otherwise));
  };
  ImportChoices choices;
  const bool applied_last = stored.Flag("Apply").value_or(false);
  choices.apply =
      WishedState(wishes, IDC_APPLY) || (applied_last && !WishedState(wishes, IDC_CREATE));
  if (is_htr) {
    choices.animation = choice(IDC_ANIMATION, "Animate", true);
    choices.base_position = choice(IDC_BASE_POSITION, "KeyBasePosition", false);
  } else {
    choices.selected_only = choice(IDC_SELECTED_ONLY, "SelectedOnly", false);
  }
  choices.frame_rate_from_file = choice(IDC_SET_FRAME_RATE, "FPS", false);
  choices.scale = TypedDouble(wishes, IDC_GLOBAL_SCALE)
                      .value_or(stored.Double("ScaleFactor").value_or(choices.scale));
  choices.offset = TypedInt(wishes, IDC_OFFSET).value_or(0);
  choices.range = TypedRange(wishes, IDC_FROM, IDC_TO);
  return choices;
}

}  // namespace cli
