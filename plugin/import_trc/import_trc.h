#pragma once

#include "plugin/shell/about_dialog.h"
#include "plugin/shell/message_sink.h"
#include "plugin/shell/product.h"
#include "sdk/core/plugin.h"

// The importer of marker files as the host sees it. So far it only says what it is: importing is
// refused with a message.
namespace orvane {

class ImportTRC final : public SceneImport {
 public:
  // `messages` is the module's and outlives this object. `module` owns the dialogs.
  ImportTRC(MessageSink& messages, HINSTANCE module) : messages_(messages), module_(module) {}

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

  // Tells the user that there is no importer yet.
  // Intended: returns 1 all the same, so that the host adds no failure message of its own.
  int DoImport(const char* name, ImpInterface* import_interface, Interface* interface,
               int suppress_prompts) override;

 private:
  MessageSink& messages_;
  HINSTANCE module_;
};

}  // namespace orvane
