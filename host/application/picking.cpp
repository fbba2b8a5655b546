#include "host/application/picking.h"

namespace host {

bool Picking::Click(INode* node) {
  PickModeCallback* const mode = callbacks_.PickMode();
  if (mode == nullptr) return false;
  viewport_.under_cursor = node;
  viewport_.hit = nullptr;
  const bool hit = mode->HitTest(nullptr, &viewport_, ViewportPoint{}, 0);
  if (hit && mode->Pick(&viewport_)) EndMode(mode);
  viewport_ = Viewport();
  return hit;
}

void Picking::RightClick() {
  PickModeCallback* const mode = callbacks_.PickMode();
  if (mode != nullptr && mode->RightClick(&viewport_)) EndMode(mode);
}

INode* Picking::NodeUnderCursor(PickNodeCallback* filter) {
  INode* const node = viewport_.under_cursor;
  if (node == nullptr || (filter != nullptr && !filter->Filter(node))) return nullptr;
  viewport_.hit = node;
  return node;
}

// Unless the plug-in has ended it already.
void Picking::EndMode(const PickModeCallback* mode) {
  if (callbacks_.PickMode() == mode) Leave();
}

}  // namespace host
