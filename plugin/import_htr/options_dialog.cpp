#include "plugin/import_htr/options_dialog.h"

#include "plugin/exchange/dialog_controls.h"
#include "plugin/resources/resource.h"
#include "plugin/services/about_dialog.h"

namespace orvane {
namespace {

// The controls that the dialog answers to.
constexpr int kFirstCommand = IDC_EULER;
constexpr int kLastCommand = IDC_ABOUT;

void EnableCreation(platform::Dialog& dialog, bool enabled) {
  EnableControls(dialog, {IDC_END_EFFECTORS, IDC_SPARE, IDC_OBJECT_SIZE}, enabled);
}

}  // namespace

ImportHTROptionsDialog::ImportHTROptionsDialog(ImportHTROptions& options, MessageSink& messages,
                                               HWND parent, HINSTANCE module)
    : OptionsDialog(IDD_IMPORT_HTR, parent, module), options_(options), messages_(messages) {}

void ImportHTROptionsDialog::Fill(platform::Dialog& dialog) {
  options_.Load();
  FillSwitches(dialog);
  FillNumbers(dialog);
}

void ImportHTROptionsDialog::FillSwitches(platform::Dialog& dialog) const {
  ShowChoice(dialog, options_.apply, IDC_APPLY, IDC_CREATE);
  EnableCreation(dialog, !options_.apply);
  ShowChoice(dialog, options_.range, IDC_RANGE, IDC_ALL);
  if (!options_.range) EnableFrameRange(dialog, false);
  ShowChoice(dialog, options_.rotationController != 0, IDC_TCB, IDC_EULER);

  dialog.SetChecked(IDC_ANIMATION, options_.animate);
  dialog.SetChecked(IDC_BASE_POSITION, options_.keyBasePosition);
  dialog.SetChecked(IDC_END_EFFECTORS, options_.endEffectors);
  dialog.SetChecked(IDC_SPARE, options_.spare);
  dialog.SetChecked(IDC_SET_FRAME_RATE, options_.setFrameRate);
}

void ImportHTROptionsDialog::FillNumbers(platform::Dialog& dialog) const {
  FillFrameRange(dialog, Range());
  FillScales(dialog, Scales());
}

void ImportHTROptionsDialog::Answer(platform::Dialog& dialog, int control) {
  if (control < kFirstCommand || control > kLastCommand) return;
  switch (control) {
    case IDC_EULER:
      return SelectRadio(dialog, IDC_EULER, IDC_TCB);
    case IDC_TCB:
      return SelectRadio(dialog, IDC_TCB, IDC_EULER);
    case IDC_ANIMATION:
      // Intended: the frames of a range stay as enabled as they are.
      return EnableControls(dialog, {IDC_ALL, IDC_RANGE}, dialog.IsChecked(IDC_ANIMATION));
    case IDC_ALL:
      SelectRadio(dialog, IDC_ALL, IDC_RANGE);
      return EnableFrameRange(dialog, false);
    case IDC_RANGE:
      SelectRadio(dialog, IDC_RANGE, IDC_ALL);
      return EnableFrameRange(dialog, true);
    case IDC_CREATE:
      SelectRadio(dialog, IDC_CREATE, IDC_APPLY);
      return EnableCreation(dialog, true);
    case IDC_APPLY:
      SelectRadio(dialog, IDC_APPLY, IDC_CREATE);
      return EnableCreation(dialog, false);
    case IDC_OK:
      return Confirm(dialog);
    case IDC_CANCEL:
      return dialog.End(kCancelled);
    case IDC_ABOUT:
      return ShowAboutDialog(Module(), dialog.Window());
    default:
      return;
  }
}

void ImportHTROptionsDialog::Confirm(platform::Dialog& dialog) {
  ReadSwitches(dialog);
  std::string refusal = ReadFrameRange(dialog, Range());
  if (refusal.empty()) refusal = ReadScales(dialog, Scales());
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

std::string ImportHTROptionsDialog::CheckCombination() const {
  if (std::string refusal = CheckFrameOrder(Range()); !refusal.empty()) return refusal;
  if (options_.apply && !options_.keyBasePosition && !options_.animate) {
    return "Please choose either Base Position, Animation, or both when in apply mode.";
  }
  return {};
}

}  // namespace orvane
