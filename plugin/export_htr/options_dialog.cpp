#include "plugin/export_htr/options_dialog.h"

#include "plugin/resources/resource.h"

namespace orvane {
namespace {

OptionsDialogTable TableFor(ExportHTROptions& options) {
  return {.dialog_id = IDD_EXPORT_HTR,
          .radio_pairs = {{IDC_SAVED_POSE, IDC_CURRENT_POSE, &options.savedPose, true},
                          {IDC_SLIDER, IDC_RANGE, &options.range, false, &EnableFrameRange, true}},
          .check_boxes = {{IDC_EXPORT_ANIMATION, &options.animate},
                          {IDC_PARENT_TRANSFORMS, &options.parentTransforms}},
          .error_title = "ExportHTR Error",
          // Intended: the importer's, as users and their notes know this message.
          .frame_order_title = "ImportHTR Error"};
}

}  // namespace

ExportHTROptionsDialog::ExportHTROptionsDialog(ExportHTROptions& options, MessageSink& messages,
                                               HWND parent, HINSTANCE module)
    : OptionsDialog(TableFor(options), options, messages, parent, module) {}

}  // namespace orvane
