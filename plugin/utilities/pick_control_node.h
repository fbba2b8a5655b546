#pragma once

#include "sdk/core/interface.h"

// The host's pick mode as the mapping creator uses it: one object is picked, or the user clicks
// with the right button, or the mode ends without either. Where the host throws, nothing is hit and
// nothing picked.
namespace orvane {

class PickControlNode final : public PickModeCallback, public PickNodeCallback {
 public:
  PickControlNode() = default;
  PickControlNode(const PickControlNode&) = delete;
  PickControlNode& operator=(const PickControlNode&) = delete;

  // Forgets the last pick. The nodes to come are those of `interface`, which outlives the mode.
  void Prepare(Interface& interface);

  // Whether the pick mode is on.
  bool IsActive() const { return active_; }

  bool WasRightClicked() const { return right_clicked_; }

  // The node picked since Prepare, or null. Belongs to the scene.
  INode* PickedNode() const { return picked_; }

  bool HitTest(HWND window, ViewportView* viewport, const ViewportPoint& point, int flags) override;
  bool Pick(ViewportView* viewport) override;
  bool AllowAnimatablePick() override { return true; }
  bool RightClick(ViewportView* viewport) override;
  void EnterMode() override { active_ = true; }
  void ExitMode() override { active_ = false; }
  void* DefaultCursor() override { return nullptr; }
  void* HitCursor() override { return nullptr; }
  PickNodeCallback* GetFilter() override { return this; }
  bool AllowMultipleSelection() override { return false; }

  // Lets geometry, shapes and helpers pass, by what the node shows at time 0.
  bool Filter(INode* node) override;

 private:
  Interface* interface_ = nullptr;
  bool active_ = false;
  bool right_clicked_ = false;
  INode* picked_ = nullptr;
};

}  // namespace orvane
