#include "plugin/export_htr/options_dialog.h"

#include "formats/text/numbers.h"
#include "plugin/exchange/dialog_controls.h"
#include "plugin/resources/resource.h"
#include "plugin/services/about_dialog.h"

namespace orvane {
namespace {

// The controls that the dialog answers to.
constexpr int kFirstCommand = IDC_SLIDER;
constexpr int kLastCommand = IDC_CURRENT_POSE;

}  // namespace

ExportHTROptionsDialog::ExportHTROptionsDialog(ExportHTROptions& options, MessageSink& messages,
                                               HWND parent, HINSTANCE module)
    : OptionsDialog(IDD_EXPORT_HTR, parent, module), options_(options), messages_(messages) {}

void ExportHTROptionsDialog::Fill(platform::Dialog& dialog) {
  options_.Load();
  FillSwitches(dialog);
  FillFrameRange(dialog, Range());
  dialog.SetText(IDC_GLOBAL_SCALE, FormatDouble(options_.scaleFactor).c_str());
}

void ExportHTROptionsDialog::FillSwitches(platform::Dialog& dialog) const {
  ShowChoice(dialog, options_.savedPose, IDC_SAVED_POSE, IDC_CURRENT_POSE);
  ShowChoice(dialog, options_.range, IDC_RANGE, IDC_SLIDER);
  if (!options_.range) EnableFrameRange(dialog, false);
  dialog.SetChecked(IDC_EXPORT_ANIMATION, options_.animate);
  dialog.SetChecked(IDC_PARENT_TRANSFORMS, options_.parentTransforms);
}

void ExportHTROptionsDialog::Answer(platform::Dialog& dialog, int control) {
  if (control < kFirstCommand || control > kLastCommand) return;
  switch (control) {
    case IDC_SLIDER:
      SelectRadio(dialog, IDC_SLIDER, IDC_RANGE);
      return EnableFrameRange(dialog, false);
    case IDC_RANGE:
      SelectRadio(dialog, IDC_RANGE, IDC_SLIDER);
      return EnableFrameRange(dialog, true);
    case IDC_SAVED_POSE:
      return SelectRadio(dialog, IDC_SAVED_POSE, IDC_CURRENT_POSE);
    case IDC_CURRENT_POSE:
      return SelectRadio(dialog, IDC_CURRENT_POSE, IDC_SAVED_POSE);
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

void ExportHTROptionsDialog::Confirm(platform::Dialog& dialog) {
  ReadSwitches(dialog);
  std::string refusal = ReadFrameRange(dialog, Range());
  if (refusal.empty()) refusal = ReadScale(dialog);
  if (!refusal.empty()) return messages_.Report(refusal.c_str(), "ExportHTR Error");

  refusal = CheckFrameOrder(Range());
  // Intended: under the importer's title, as users and their notes know this message.
  if (!refusal.empty()) return messages_.Report(refusal.c_str(), "ImportHTR Error");

  options_.Save();
  dialog.End(kConfirmed);
}

void ExportHTROptionsDialog::ReadSwitches(platform::Dialog& dialog) {
  options_.savedPose = dialog.IsChecked(IDC_SAVED_POSE);
  options_.range = !dialog.IsChecked(IDC_SLIDER);
  options_.animate = dialog.IsChecked(IDC_EXPORT_ANIMATION);
  options_.parentTransforms = dialog.IsChecked(IDC_PARENT_TRANSFORMS);
}

std::string ExportHTROptionsDialog::ReadScale(platform::Dialog& dialog) {
  options_.scaleFactor = ParseDouble(ControlText(dialog, IDC_GLOBAL_SCALE));
  if (options_.scaleFactor == 0.0) return "Please choose a non-zero scale factor.";
  return {};
}

}  // namespace orvane
