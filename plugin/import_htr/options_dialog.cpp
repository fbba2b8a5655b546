#include "plugin/import_htr/options_dialog.h"

#include <array>
#include <initializer_list>

#include "plugin/resources/resource.h"
#include "plugin/shell/about_dialog.h"
#include "plugin/text/numbers.h"
#include "sdk/skelderutil/window.h"

namespace orvane {
namespace {

// The controls that the dialog answers to.
constexpr int kFirstCommand = IDC_EULER;
constexpr int kLastCommand = IDC_ABOUT;

void Enable(platform::Dialog& dialog, std::initializer_list<int> controls, bool enabled) {
  for (const int control : controls) dialog.SetEnabled(control, enabled);
}

void Select(platform::Dialog& dialog, int radio, int other_radio) {
  dialog.SetChecked(other_radio, false);
  dialog.SetChecked(radio, true);
}

void EnableCreation(platform::Dialog& dialog, bool enabled) {
  Enable(dialog, {IDC_END_EFFECTORS, IDC_SPARE, IDC_SEGMENT_SIZE}, enabled);
}

void EnableRange(platform::Dialog& dialog, bool enabled) {
  Enable(dialog, {IDC_FROM, IDC_TO}, enabled);
}

std::string Text(platform::Dialog& dialog, int control) {
  std::array<char, 256> buffer{};
  const std::size_t length = dialog.GetText(control, buffer.data(), buffer.size());
  return std::string(buffer.data(), length);
}

}  // namespace

bool ImportHTROptionsDialog::Show() {
  return platform::RunModalDialog(module_, IDD_IMPORT_HTR, parent_, *this) == kConfirmed;
}

void ImportHTROptionsDialog::Initialize(platform::Dialog& dialog) {
  try {
    CenterWindow(dialog.Window(), parent_);
    options_.Load();
    FillSwitches(dialog);
    FillNumbers(dialog);
  } catch (...) {
    dialog.End(kCancelled);
  }
}

void ImportHTROptionsDialog::Command(platform::Dialog& dialog, int control) {
  if (control < kFirstCommand || control > kLastCommand) return;
  try {
    Answer(dialog, control);
  } catch (...) {
    dialog.End(kCancelled);
  }
}

void ImportHTROptionsDialog::FillSwitches(platform::Dialog& dialog) const {
  dialog.SetChecked(options_.apply ? IDC_APPLY : IDC_CREATE, true);
  EnableCreation(dialog, !options_.apply);
  dialog.SetChecked(options_.range ? IDC_RANGE : IDC_ALL, true);
  if (!options_.range) EnableRange(dialog, false);
  dialog.SetChecked(options_.rotationController != 0 ? IDC_TCB : IDC_EULER, true);

  dialog.SetChecked(IDC_ANIMATION, options_.animate);
  dialog.SetChecked(IDC_BASE_POSITION, options_.keyBasePosition);
  dialog.SetChecked(IDC_END_EFFECTORS, options_.endEffectors);
  dialog.SetChecked(IDC_SPARE, options_.spare);
  dialog.SetChecked(IDC_SET_FRAME_RATE, options_.setFrameRate);
}

void ImportHTROptionsDialog::FillNumbers(platform::Dialog& dialog) const {
  dialog.SetText(IDC_FROM, FormatInt(options_.startFrame).c_str());
  dialog.SetText(IDC_TO, FormatInt(options_.endFrame).c_str());
  dialog.SetText(IDC_OFFSET, FormatInt(options_.frameOffset).c_str());
  dialog.SetText(IDC_SEGMENT_SIZE, FormatDouble(static_cast<double>(options_.size)).c_str());
  dialog.SetText(IDC_GLOBAL_SCALE, FormatDouble(options_.scaleFactor).c_str());
}

void ImportHTROptionsDialog::Answer(platform::Dialog& dialog, int control) {
  switch (control) {
    case IDC_EULER:
      return Select(dialog, IDC_EULER, IDC_TCB);
    case IDC_TCB:
      return Select(dialog, IDC_TCB, IDC_EULER);
    case IDC_ANIMATION:
      // Intended: the frames of a range stay as enabled as they are.
      return Enable(dialog, {IDC_ALL, IDC_RANGE}, dialog.IsChecked(IDC_ANIMATION));
    case IDC_ALL:
      Select(dialog, IDC_ALL, IDC_RANGE);
      return EnableRange(dialog, false);
    case IDC_RANGE:
      Select(dialog, IDC_RANGE, IDC_ALL);
      return EnableRange(dialog, true);
    case IDC_CREATE:
      Select(dialog, IDC_CREATE, IDC_APPLY);
      return EnableCreation(dialog, true);
    case IDC_APPLY:
      Select(dialog, IDC_APPLY, IDC_CREATE);
      return EnableCreation(dialog, false);
    case IDC_OK:
      return Confirm(dialog);
    case IDC_CANCEL:
      return dialog.End(kCancelled);
    case IDC_ABOUT:
      return ShowAboutDialog(module_, dialog.Window());
    default:
      return;
  }
}

void ImportHTROptionsDialog::Confirm(platform::Dialog& dialog) {
  ReadSwitches(dialog);
  std::string refusal = ReadRange(dialog);
  if (refusal.empty()) refusal = ReadScales(dialog);
  if (refusal.empty()) refusal = CheckCombination();
  if (!refusal.empty()) return messages_.Report(refusal.c_str(), "ImportHTR Error");
  options_.Save();
  dialog.End(kConfirmed);
}

void ImportHTROptionsDialog::ReadSwitches(platform::Dialog& dialog) {
  options_.apply = !dialog.IsChecked(IDC_CREATE);
  options_.range = !dialog.IsChecked(IDC_ALL);
  options_.rotationController = dialog.IsChecked(IDC_EULER) ? 0 : 1;
  options_.animate = dialog.IsChecked(IDC_ANIMATION);
  options_.keyBasePosition = dialog.IsChecked(IDC_BASE_POSITION);
  options_.endEffectors = dialog.IsChecked(IDC_END_EFFECTORS);
  options_.spare = dialog.IsChecked(IDC_SPARE);
  options_.setFrameRate = dialog.IsChecked(IDC_SET_FRAME_RATE);
}

// Intended: a frame that is accepted is the bound of the next attempt, even when a later check
// refuses this one; the range only ever narrows while the dialog is open.
std::string ImportHTROptionsDialog::ReadRange(platform::Dialog& dialog) {
  const std::int32_t from = ParseInt(Text(dialog, IDC_FROM));
  if (from < options_.startFrame) {
    const std::string bound = FormatInt(options_.startFrame);
    dialog.SetText(IDC_FROM, bound.c_str());
    return "Please choose a start frame equal to or greater than " + bound + ".";
  }
  options_.startFrame = from;

  const std::int32_t to = ParseInt(Text(dialog, IDC_TO));
  if (to > options_.endFrame) {
    const std::string bound = FormatInt(options_.endFrame);
    dialog.SetText(IDC_TO, bound.c_str());
    return "Please choose an end frame less than or equal to " + bound + ".";
  }
  options_.endFrame = to;

  options_.frameOffset = ParseInt(Text(dialog, IDC_OFFSET));
  return {};
}

std::string ImportHTROptionsDialog::ReadScales(platform::Dialog& dialog) {
  options_.size = static_cast<float>(ParseDouble(Text(dialog, IDC_SEGMENT_SIZE)));
  if (options_.size == 0.0F) return "Please choose a non-zero size.";
  options_.scaleFactor = ParseDouble(Text(dialog, IDC_GLOBAL_SCALE));
  if (options_.scaleFactor == 0.0) return "Please choose a non-zero scale factor.";
  return {};
}

std::string ImportHTROptionsDialog::CheckCombination() const {
  // Intended: equal frames pass, whatever the words say.
  if (options_.endFrame < options_.startFrame) {
    return "Please choose a start frame that is less than the end frame.";
  }
  if (options_.apply && !options_.keyBasePosition && !options_.animate) {
    return "Please choose either Base Position, Animation, or both when in apply mode.";
  }
  return {};
}

}  // namespace orvane
