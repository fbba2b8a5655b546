#include "plugin/import_trc/options_dialog.h"

#include "plugin/exchange/dialog_controls.h"
#include "plugin/resources/resource.h"

namespace orvane {
namespace {

constexpr char kError[] = "ImportTRC Error";
// Intended: what an order of frames that is refused is titled here as in the HTR importer; users
// and scripts that answer it know it by this title.
constexpr char kFrameOrderError[] = "ImportHTR Error";

void EnableCreation(platform::Dialog& dialog, bool enabled) {
  EnableControls(dialog, {IDC_ROOT_NODE, IDC_SPHERE, IDC_POINT, IDC_OBJECT_SIZE}, enabled);
  EnableControls(dialog, {IDC_SELECTED_ONLY}, !enabled);
}

}  // namespace

ImportTRCOptionsDialog::ImportTRCOptionsDialog(ImportTRCOptions& options, MessageSink& messages,
                                               HWND parent, HINSTANCE module)
    : OptionsDialog(IDD_IMPORT_TRC, parent, module), options_(options), messages_(messages) {}

void ImportTRCOptionsDialog::Fill(platform::Dialog& dialog) {
  options_.Load();
  FillSwitches(dialog);
  FillFrameRange(dialog, Range());
  FillScales(dialog, Scales());
}

void ImportTRCOptionsDialog::FillSwitches(platform::Dialog& dialog) const {
  ShowChoice(dialog, options_.apply, IDC_APPLY, IDC_CREATE);
  EnableCreation(dialog, !options_.apply);
  ShowChoice(dialog, options_.range, IDC_RANGE, IDC_ALL);
  if (!options_.range) EnableFrameRange(dialog, false);
  ShowChoice(dialog, options_.geometry, IDC_SPHERE, IDC_POINT);

  dialog.SetChecked(IDC_SELECTED_ONLY, options_.selectedOnly);
  dialog.SetChecked(IDC_ROOT_NODE, options_.rootNode);
  dialog.SetChecked(IDC_SET_FRAME_RATE, options_.setFrameRate);
}

void ImportTRCOptionsDialog::Answer(platform::Dialog& dialog, int control) {
  switch (control) {
    case IDC_CREATE:
      SelectRadio(dialog, IDC_CREATE, IDC_APPLY);
      return EnableCreation(dialog, true);
    case IDC_APPLY:
      SelectRadio(dialog, IDC_APPLY, IDC_CREATE);
      return EnableCreation(dialog, false);
    case IDC_SPHERE:
      return SelectRadio(dialog, IDC_SPHERE, IDC_POINT);
    case IDC_POINT:
      return SelectRadio(dialog, IDC_POINT, IDC_SPHERE);
    case IDC_ALL:
      SelectRadio(dialog, IDC_ALL, IDC_RANGE);
      return EnableFrameRange(dialog, false);
    case IDC_RANGE:
      SelectRadio(dialog, IDC_RANGE, IDC_ALL);
      return EnableFrameRange(dialog, true);
    case IDC_OK:
      return Confirm(dialog);
    case IDC_CANCEL:
      return dialog.End(kCancelled);
    default:
      return;
  }
}

void ImportTRCOptionsDialog::Confirm(platform::Dialog& dialog) {
  ReadSwitches(dialog);
  std::string refusal = ReadFrameRange(dialog, Range());
  if (refusal.empty()) refusal = ReadScales(dialog, Scales());
  if (!refusal.empty()) return messages_.Report(refusal.c_str(), kError);
  refusal = CheckFrameOrder(Range());
  if (!refusal.empty()) return messages_.Report(refusal.c_str(), kFrameOrderError);
  options_.Save();
  dialog.End(kConfirmed);
}

void ImportTRCOptionsDialog::ReadSwitches(platform::Dialog& dialog) {
  options_.apply = !dialog.IsChecked(IDC_CREATE);
  options_.range = !dialog.IsChecked(IDC_ALL);
  options_.geometry = dialog.IsChecked(IDC_SPHERE);
  options_.selectedOnly = dialog.IsChecked(IDC_SELECTED_ONLY);
  options_.rootNode = dialog.IsChecked(IDC_ROOT_NODE);
  options_.setFrameRate = dialog.IsChecked(IDC_SET_FRAME_RATE);
}

}  // namespace orvane
