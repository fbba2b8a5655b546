#pragma once

#include <cstdint>

#include "formats/htr/document.h"
#include "plugin/exchange/file_class.h"
#include "plugin/import_htr/options.h"
#include "sdk/core/plugin.h"

// The importer of motion files as the host sees it: what it says about itself, and the order of
// work of one import. Creating skeletons and keying them is done elsewhere in this folder.
namespace orvane {

class ImportHTR final : public FileClass<SceneImport> {
 public:
  // `options` and `messages` are the module's and outlive this object. `module` owns the dialogs.
  ImportHTR(ImportHTROptions& options, MessageSink& messages, HINSTANCE module);

  // Imports the motion file `name` into the scene, with the options dialog unless
  // `suppress_prompts` is 1. Returns 1 when the import is done or the dialog was cancelled, 0 when
  // it was refused or failed; refusals and the want of memory have been reported. Without a name or
  // an interface it does nothing and returns 0.
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
  std::int64_t FrameCount() const;
  [[nodiscard]] bool ImportMotion();
  [[nodiscard]] bool ImportMotionOf(HtrSegment* branch, INode& node);
  [[nodiscard]] bool ApplyToSelection();
  [[nodiscard]] bool CreateSkeleton();
  [[nodiscard]] INode* CreateGroupedSkeleton(const HtrSegment& root);
  void SetAnimationRange();

  ImportHTROptions& options_;
  HtrDocument document_;
  std::int64_t frame_count_ = 0;
};

}  // namespace orvane
