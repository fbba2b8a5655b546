#pragma once

#include "host/scene/scene_object.h"

namespace host {

// A helper that marks a point; its size is the scale of its node.
class SKELDER_API PointHelper final : public SceneObjectOf<::Object> {
 public:
  explicit PointHelper(InstancePool& pool);
};

}  // namespace host
