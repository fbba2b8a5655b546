#pragma once

#include "host/scene/scene_object.h"

// What a point helper's node shows. The node that shows it owns it, and until then the scene's pool
// does.

namespace host {

// A helper that marks a point; its size is the scale of its node.
class SKELDER_API PointHelper final : public SceneObjectOf<::Object> {
 public:
  explicit PointHelper(InstancePool& pool);
};

}  // namespace host
