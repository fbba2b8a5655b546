#include "plugin/import_trc/options_dialog.h"

#include "plugin/exchange/dialog_controls.h"
#include "plugin/resources/resource.h"

namespace orvane {
namespace {

void EnableCreation(platform::Dialog& dialog, bool create) {
  EnableControls(dialog, {IDC_ROOT_NODE, IDC_SPHERE, IDC_POINT, IDC_OBJECT_SIZE}, create);
  EnableControls(dialog, {IDC_SELECTED_ONLY}, !create);
}

OptionsDialogTable TableFor(ImportTRCOptions& options) {
  return {.dialog_id = IDD_IMPORT_TRC,
          .radio_pairs = {{IDC_CREATE, IDC_APPLY, &options.apply, false, &EnableCreation},
                          {IDC_ALL, IDC_RANGE, &options.range, false, &EnableFrameRange, true},
                          {IDC_SPHERE, IDC_POINT, &options.geometry, true}},
          .check_boxes = {{IDC_SELECTED_ONLY, &options.selectedOnly},
                          {IDC_ROOT_NODE, &options.rootNode},
                          {IDC_SET_FRAME_RATE, &options.setFrameRate}},
          .size = &options.size,
          .answers_about = false,
          .error_title = "ImportTRC Error",
          // Intended: as in the HTR importer; users and scripts that answer it know it by this
          // title.
          .frame_order_title = "ImportHTR Error"};
}

}  // namespace

ImportTRCOptionsDialog::ImportTRCOptionsDialog(ImportTRCOptions& options, MessageSink& messages,
                                               HWND parent, HINSTANCE module)
    : OptionsDialog(TableFor(options), options, messages, parent, module) {}

}  // namespace orvane
