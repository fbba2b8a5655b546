#pragma once

class INode;

// A viewport, during a pick.
class ViewportView {
 public:
  // The node nearest to the viewer among those that the last hit test met, or null. Belongs to the
  // scene.
  virtual INode* GetClosestHit() = 0;

 protected:
  ~ViewportView() = default;
};

// A position in a viewport window, in pixels from its upper left corner.
struct ViewportPoint {
  int x = 0;
  int y = 0;
};
