#pragma once

#include "host/application/plugin_callbacks.h"
#include "platform/export.h"
#include "sdk/core/callbacks.h"
#include "sdk/gfx/viewport.h"

// The pick mode, as the user in front of the one viewport uses it. Without a pick mode nothing that
// he does has an effect here. Any of it may end the mode.

namespace host {

class SKELDER_API Picking {
 public:
  // `callbacks` holds the pick mode in use, and outlives this object.
  explicit Picking(PluginCallbacks& callbacks) : callbacks_(callbacks) {}
  Picking(const Picking&) = delete;
  Picking& operator=(const Picking&) = delete;

  bool IsActive() const { return callbacks_.PickMode() != nullptr; }

  // The user clicks where `node` is, or where nothing is (null). Returns whether there was
  // something to pick for the plug-in.
  bool Click(INode* node);

  void RightClick();

  // The application leaves the mode, as when the user turns to another tool.
  void Leave() { callbacks_.SetPickMode(nullptr); }

  // What a plug-in's hit test finds: the node under the cursor, unless `filter` (null: none) stops
  // it.
  INode* NodeUnderCursor(PickNodeCallback* filter);

 private:
  // The viewport that all this happens in.
  class Viewport final : public ViewportView {
   public:
    INode* GetClosestHit() override { return hit; }

    INode* under_cursor = nullptr;
    INode* hit = nullptr;
  };

  void EndMode(const PickModeCallback* mode);

  PluginCallbacks& callbacks_;
  Viewport viewport_;
};

}  // namespace host
