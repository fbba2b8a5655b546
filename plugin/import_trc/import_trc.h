#pragma once

#include "formats/trc/document.h"
#include "plugin/exchange/file_class.h"
#include "plugin/import_trc/options.h"
#include "sdk/core/plugin.h"

// The importer of marker files as the host sees it: what it says about itself, and the order of
// work of one import. Building the scene is done elsewhere in this folder.
namespace orvane {

class ImportTRC final : public FileClass<SceneImport> {
 public:
  // `options` and `messages` are the module's and outlive this object. `module` owns the dialogs.
  ImportTRC(ImportTRCOptions& options, MessageSink& messages, HINSTANCE module);

  // Imports the marker file `name` into the scene, with the options dialog unless
  // `suppress_prompts` is 1. Refusals are reported.
  // Intended: returns 1 whatever happens, so that the host adds no failure message of its own; 0
  // only without a name or an interface, when there is no import.
  // Animation and set-key mode are suspended, and resumed only when the import is done.
  int DoImport(const char* name, ImpInterface* import_interface, Interface* interface,
               int suppress_prompts) override;

  int ZoomExtents() override { return -1; }

 private:
  Outcome Work() override;
  void ForgetDocument() override;
  [[nodiscard]] bool ReadFile();
  void ConvertUnits();
  void SetFrameBounds();

  ImportTRCOptions& options_;
  TRCDocument document_;
};

}  // namespace orvane
