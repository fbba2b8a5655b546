#pragma once

#include "plugin/shell/about_dialog.h"
#include "plugin/shell/message_sink.h"
#include "plugin/shell/product.h"
#include "sdk/core/plugin.h"

// The exporter of motion files as the host sees it. So far it only says what it is: exporting is
// refused with a message.
namespace orvane {

class ExportHTR final : public SceneExport {
 public:
  // `messages` is the module's and outlives this object. `module` owns the dialogs.
  ExportHTR(MessageSink& messages, HINSTANCE module) : messages_(messages), module_(module) {}

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

  // Tells the user that there is no exporter yet and returns 0.
  int DoExport(const char* name, ExpInterface* export_interface, Interface* interface,
               int suppress_prompts, std::uint32_t options) override;

 private:
  MessageSink& messages_;
  HINSTANCE module_;
};

}  // namespace orvane
