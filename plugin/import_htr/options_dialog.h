#pragma once

#include <string>

#include "plugin/exchange/options_dialog.h"
#include "plugin/import_htr/options.h"

// The dialog in which the user chooses how a motion file is imported.
namespace orvane {

class ImportHTROptionsDialog final : public OptionsDialog {
 public:
  // As OptionsDialog.
  ImportHTROptionsDialog(ImportHTROptions& options, MessageSink& messages, HWND parent,
                         HINSTANCE module);

 private:
  void AnswerOwn(platform::Dialog& dialog, int control) override;
  std::string CheckCombination() const override;

  ImportHTROptions& options_;
};

}  // namespace orvane
