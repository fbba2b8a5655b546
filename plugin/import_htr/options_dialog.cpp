#include "plugin/import_htr/options_dialog.h"

#include "plugin/exchange/dialog_controls.h"
#include "plugin/resources/resource.h"

namespace orvane {
namespace {

constexpr char kError[] = "ImportHTR Error";

void EnableCreation(platform::Dialog& dialog, bool create) {
  EnableControls(dialog, {IDC_END_EFFECTORS, IDC_SPARE, IDC_OBJECT_SIZE}, create);
}

OptionsDialogTable TableFor(ImportHTROptions& options) {
  return {.dialog_id = IDD_IMPORT_HTR,
          .radio_pairs = {{IDC_CREATE, IDC_APPLY, &options.apply, false, &EnableCreation},
                          {IDC_ALL, IDC_RANGE, &options.range, false, &EnableFrameRange, true},
                          {IDC_EULER, IDC_TCB, &options.rotationController, false}},
          .check_boxes = {{IDC_ANIMATION, &options.animate},
                          {IDC_BASE_POSITION, &options.keyBasePosition},
                          {IDC_END_EFFECTORS, &options.endEffectors},
                          {IDC_SPARE, &options.spare},
                          {IDC_SET_FRAME_RATE, &options.setFrameRate}},
          .size = &options.size,
          .error_title = kError,
          .frame_order_title = kError};
}

}  // namespace

ImportHTROptionsDialog::ImportHTROptionsDialog(ImportHTROptions& options, MessageSink& messages,
                                               HWND parent, HINSTANCE module)
    : OptionsDialog(TableFor(options), options, messages, parent, module), options_(options) {}

void ImportHTROptionsDialog::AnswerOwn(platform::Dialog& dialog, int control) {
  // Intended: the frames of a range stay as enabled as they are.
  if (control == IDC_ANIMATION) {
    EnableControls(dialog, {IDC_ALL, IDC_RANGE}, dialog.IsChecked(IDC_ANIMATION));
  }
}

std::string ImportHTROptionsDialog::CheckCombination() const {
  if (options_.apply && !options_.keyBasePosition && !options_.animate) {
    return "Please choose either Base Position, Animation, or both when in apply mode.";
  }
  return {};
}

}  // namespace orvane
