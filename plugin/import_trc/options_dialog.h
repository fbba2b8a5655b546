#pragma once

#include "plugin/exchange/options_dialog.h"
#include "plugin/import_trc/options.h"

// The dialog in which the user chooses how a marker file is imported.
namespace orvane {

class ImportTRCOptionsDialog final : public OptionsDialog {
 public:
  // As OptionsDialog.
  ImportTRCOptionsDialog(ImportTRCOptions& options, MessageSink& messages, HWND parent,
                         HINSTANCE module);
};

}  // namespace orvane
