#pragma once

#include "host/scene/scene_object.h"
#include "sdk/geom/box3.h"

// What a dummy node shows. The node that shows it owns it, and until then the scene's pool does.

namespace host {

// The dummy helper: a box, from -10 to 10 on each axis at first.
class SKELDER_API BoxObject final : public SceneObjectOf<DummyObject> {
 public:
  explicit BoxObject(InstancePool& pool);

  // In the node's own space and in system units.
  const Box3& Box() const { return box_; }

  std::vector<double> Parameters() const override;
  [[nodiscard]] bool SetParameters(const std::vector<double>& values) override;

  void SetBox(const Box3& box) override { box_ = box; }

 private:
  Box3 box_;
};

}  // namespace host
