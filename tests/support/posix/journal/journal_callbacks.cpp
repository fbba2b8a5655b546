#include "tests/support/posix/journal/journal_callbacks.h"

namespace test {

class JournalCallbacks::Viewport final : public ViewportView {
 public:
  Viewport(JournalScene& scene, ViewportView& own) : scene_(scene), own_(own) {}
  INode* GetClosestHit() override { return scene_.Shown(own_.GetClosestHit()); }

 private:
  JournalScene& scene_;
  ViewportView& own_;
};

class JournalCallbacks::PickNode final : public PickNodeCallback {
 public:
  PickNode(JournalScene& scene, PickNodeCallback& own) : scene_(scene), own_(own) {}
  bool Filter(INode* node) override { return own_.Filter(scene_.Shown(node)); }

 private:
  JournalScene& scene_;
  PickNodeCallback& own_;
};

class JournalCallbacks::PickMode final : public PickModeCallback {
 public:
  PickMode(JournalCallbacks& callbacks, PickModeCallback& own)
      : callbacks_(callbacks), scene_(callbacks.scene_), own_(own) {}

  bool HitTest(HWND window, ViewportView* viewport, const ViewportPoint& point,
               int flags) override {
    Viewport shown(scene_, *viewport);
    const bool hit = own_.HitTest(window, &shown, point, flags);
    scene_.journal().Note("the host tests for a hit: ", hit);
    return hit;
  }
  bool Pick(ViewportView* viewport) override {
    Viewport shown(scene_, *viewport);
    const bool ends = own_.Pick(&shown);
    scene_.journal().Note("the user picks, which ends the mode? ", ends);
    return ends;
  }
  bool AllowAnimatablePick() override { return own_.AllowAnimatablePick(); }
  bool RightClick(ViewportView* viewport) override {
    Viewport shown(scene_, *viewport);
    const bool ends = own_.RightClick(&shown);
    scene_.journal().Note("the user clicks right, which ends the mode? ", ends);
    return ends;
  }
  void EnterMode() override { own_.EnterMode(); }
  void ExitMode() override { own_.ExitMode(); }
  void* DefaultCursor() override { return own_.DefaultCursor(); }
  void* HitCursor() override { return own_.HitCursor(); }
  PickNodeCallback* GetFilter() override { return callbacks_.Shown(own_.GetFilter()); }
  bool AllowMultipleSelection() override { return own_.AllowMultipleSelection(); }

 private:
  JournalCallbacks& callbacks_;
  JournalScene& scene_;
  PickModeCallback& own_;
};

class JournalCallbacks::Exit final : public ExitSkelderCallback {
 public:
  Exit(JournalScene& scene, ExitSkelderCallback& own) : scene_(scene), own_(own) {}
  void HostExiting(HWND window) override {
    scene_.journal().Note("the host tells that it exits");
    own_.HostExiting(window);
  }

 private:
  JournalScene& scene_;
  ExitSkelderCallback& own_;
};

JournalCallbacks::JournalCallbacks(JournalScene& scene) : scene_(scene) {}

JournalCallbacks::~JournalCallbacks() = default;

PickModeCallback* JournalCallbacks::Shown(PickModeCallback* own) {
  if (own == nullptr) return nullptr;
  auto& shown = pick_modes_[own];
  if (shown == nullptr) shown = std::make_unique<PickMode>(*this, *own);
  return shown.get();
}

PickNodeCallback* JournalCallbacks::Shown(PickNodeCallback* own) {
  if (own == nullptr) return nullptr;
  auto& shown = pick_nodes_[own];
  if (shown == nullptr) shown = std::make_unique<PickNode>(scene_, *own);
  return shown.get();
}

ExitSkelderCallback* JournalCallbacks::Shown(ExitSkelderCallback* own) {
  if (own == nullptr) return nullptr;
  auto& shown = exits_[own];
  if (shown == nullptr) shown = std::make_unique<Exit>(scene_, *own);
  return shown.get();
}

}  // namespace test
