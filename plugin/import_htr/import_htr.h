#pragma once

#include <cstdint>

#include "formats/htr/document.h"
#include "plugin/import_htr/options.h"
#include "plugin/services/about_dialog.h"
#include "plugin/services/message_sink.h"
#include "plugin/services/product.h"
#include "sdk/core/cstr.h"
#include "sdk/core/interface.h"
#include "sdk/core/plugin.h"

// The importer of motion files as the host sees it: what it says about itself, and the order of
// work of one import. Creating skeletons and keying them is done elsewhere in this folder.
namespace orvane {

class ImportHTR final : public SceneImport {
 public:
  // `options` and `messages` are the module's and outlive this object. `module` owns the dialogs.
  ImportHTR(ImportHTROptions& options, MessageSink& messages, HINSTANCE module)
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

  // Imports the motion file `name` into the scene, with the options dialog unless
  // `suppress_prompts` is 1. Returns 1 when the import is done or the dialog was cancelled, 0 when
  // it was refused or failed; refusals and the want of memory have been reported. Without a name or
  // an interface it does nothing and returns 0.
  // Animation and set-key mode are suspended, and resumed only when the import is done.
  int DoImport(const char* name, ImpInterface* import_interface, Interface* interface,
               int suppress_prompts) override;

  int ZoomExtents() override { return -1; }

 private:
  enum class Outcome { kDone, kCancelled, kFailed };

  int Import();
  Outcome Work();
  bool ReadFile();
  void ConvertUnits();
  void SetFrameBounds();
  bool ConfirmOptions();
  std::int64_t FrameCount() const;
  bool ImportMotion();
  bool ImportMotionOf(HtrSegment* branch, INode& node);
  bool ApplyToSelection();
  bool CreateSkeleton();
  INode* CreateGroupedSkeleton(const HtrSegment& root);
  void SetAnimationRange();
  bool Refuse(const char* message, const char* title);

  ImportHTROptions& options_;
  MessageSink& messages_;
  HINSTANCE module_;

  // Of the import that runs.
  CStr file_name_;
  ImpInterface* import_interface_ = nullptr;
  Interface* interface_ = nullptr;
  bool quiet_ = false;
  HtrDocument document_;
  std::int64_t frame_count_ = 0;
};

}  // namespace orvane
