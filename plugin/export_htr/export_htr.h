#pragma once

#include "formats/htr/document.h"
#include "plugin/export_htr/options.h"
#include "plugin/services/about_dialog.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/product.h"
#include "sdk/core/cstr.h"
#include "sdk/core/interface.h"
#include "sdk/core/plugin.h"

// The exporter of motion files as the host sees it: what it says about itself, and the order of
// work of one export. Choosing and sampling the skeleton is done elsewhere in this folder.
namespace orvane {

class ExportHTR final : public SceneExport {
 public:
  // `options` and `messages` are the module's and outlive this object. `module` owns the dialogs.
  ExportHTR(ExportHTROptions& options, MessageSink& messages, HINSTANCE module)
      : options_(options), messages_(messages), module_(module) {}

  int ExtCount() override { return 1; }
  const char* Ext(int /*n*/) override { return "HTR"; }
  const char* LongDesc() override { return "Orvane HTR Skeletal Animation File"; }
  const char* ShortDesc() override { return "Orvane HTR File"; }
  const char* AuthorName() override { return kAuthorName; }
  const char* CopyrightMessage() override { return kCopyrightMessage; }
  const char* OtherMessage1() override { return ""; }
  const char* OtherMessage2() override { return ""; }
  unsigned Version() override { return kClassVersion; }
  void ShowAbout(HWND owner) override { ShowAboutDialog(module_, owner); }

  // Exports the selected skeleton to the motion file `name`, with the options dialog unless
  // `suppress_prompts` is not 0. Returns 1 when the export is done or the dialog was cancelled, 0
  // when it was refused or failed, which has been reported. Without a name or an interface it does
  // nothing and returns 0.
  // Animation and set-key mode are suspended, and resumed only when the export is done.
  int DoExport(const char* name, ExpInterface* export_interface, Interface* interface,
               int suppress_prompts, std::uint32_t options) override;

  int SupportsOptions(int /*extension*/, std::uint32_t /*options*/) override { return 0; }

 private:
  enum class Outcome { kDone, kCancelled, kFailed };

  int Export(bool suppress_prompts);
  Outcome Work(bool suppress_prompts);
  void SetFrameBounds();
  bool ConfirmOptions();
  bool BuildDocument();
  std::uint32_t FrameCount() const;
  bool WriteFile();

  ExportHTROptions& options_;
  MessageSink& messages_;
  HINSTANCE module_;

  // Of the export that runs.
  CStr file_name_;
  Interface* interface_ = nullptr;
  HtrDocument document_;
};

}  // namespace orvane
