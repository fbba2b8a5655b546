#pragma once

#include "formats/trc/document.h"
#include "plugin/import_trc/options.h"
#include "plugin/services/about_dialog.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/product.h"
#include "sdk/core/cstr.h"
#include "sdk/core/interface.h"
#include "sdk/core/plugin.h"

// The importer of marker files as the host sees it: what it says about itself, and the order of
// work of one import. Building the scene is done elsewhere in this folder.
namespace orvane {

class ImportTRC final : public SceneImport {
 public:
  // `options` and `messages` are the module's and outlive this object. `module` owns the dialogs.
  ImportTRC(ImportTRCOptions& options, MessageSink& messages, HINSTANCE module)
      : options_(options), messages_(messages), module_(module) {}

  int ExtCount() override { return 1; }
  const char* Ext(int /*n*/) override { return "TRC"; }
  const char* LongDesc() override { return "Orvane TRC Optical Marker Tracking File"; }
  const char* ShortDesc() override { return "Orvane TRC File"; }
  const char* AuthorName() override { return kAuthorName; }
  const char* CopyrightMessage() override { return kCopyrightMessage; }
  const char* OtherMessage1() override { return ""; }
  const char* OtherMessage2() override { return ""; }
  unsigned Version() override { return kClassVersion; }
  void ShowAbout(HWND owner) override { ShowAboutDialog(module_, owner); }

  // Imports the marker file `name` into the scene, with the options dialog unless
  // `suppress_prompts` is 1. Refusals are reported.
  // Intended: returns 1 whatever happens, so that the host adds no failure message of its own; 0
  // only without a name or an interface, when there is no import.
  // Animation and set-key mode are suspended, and resumed only when the import is done.
  int DoImport(const char* name, ImpInterface* import_interface, Interface* interface,
               int suppress_prompts) override;

  int ZoomExtents() override { return -1; }

 private:
  void Import();
  bool Work();
  bool ReadFile();
  void ConvertUnits();
  void SetFrameBounds();
  bool ConfirmOptions();

  ImportTRCOptions& options_;
  MessageSink& messages_;
  HINSTANCE module_;

  // Of the import that runs.
  CStr file_name_;
  ImpInterface* import_interface_ = nullptr;
  Interface* interface_ = nullptr;
  bool quiet_ = false;
  TRCDocument document_;
};

}  // namespace orvane
