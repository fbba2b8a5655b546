#pragma once

#include "plugin/exchange/options_dialog.h"
#include "plugin/export_htr/options.h"

// The dialog in which the user chooses how a skeleton is exported.
namespace orvane {

class ExportHTROptionsDialog final : public OptionsDialog {
 public:
  // As OptionsDialog.
  ExportHTROptionsDialog(ExportHTROptions& options, MessageSink& messages, HWND parent,
                         HINSTANCE module);
};

}  // namespace orvane
