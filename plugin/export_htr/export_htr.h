#pragma once

#include "formats/htr/document.h"
#include "plugin/exchange/file_class.h"
#include "plugin/export_htr/options.h"
#include "sdk/core/plugin.h"

// The exporter of motion files as the host sees it: what it says about itself, and the order of
// work of one export. Choosing and sampling the skeleton is done elsewhere in this folder.
namespace orvane {

class ExportHTR final : public FileClass<SceneExport> {
 public:
  // `options` and `messages` are the module's and outlive this object. `module` owns the dialogs.
  ExportHTR(ExportHTROptions& options, MessageSink& messages, HINSTANCE module);

  // Exports the selected skeleton to the motion file `name`, with the options dialog unless
  // `suppress_prompts` is not 0. Returns 1 when the export is done or the dialog was cancelled, 0
  // when it was refused or failed, which has been reported. Without a name or an interface it does
  // nothing and returns 0.
  // Animation and set-key mode are suspended, and resumed only when the export is done.
  int DoExport(const char* name, ExpInterface* export_interface, Interface* interface,
               int suppress_prompts, std::uint32_t options) override;

  int SupportsOptions(int /*extension*/, std::uint32_t /*options*/) override { return 0; }

 private:
  Outcome Work() override;
  void ForgetDocument() override;
  void SetFrameBounds();
  [[nodiscard]] bool BuildDocument();
  std::uint32_t FrameCount() const;
  [[nodiscard]] bool WriteFile();

  ExportHTROptions& options_;
  HtrDocument document_;
};

}  // namespace orvane
