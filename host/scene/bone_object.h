#pragma once

#include <array>

#include "host/scene/scene_object.h"
#include "sdk/paramblk2/parameter_block.h"

// What a bone node shows. That its node is a bone is kept by the node. The node that shows it owns
// it, and until then the scene's pool does.

namespace host {

// A bone: parameters 0 (width), 1 (height), 2 (taper, in percent) and 3 (length along the node's X
// axis), lengths in system units. Parameters do not change over time.
class SKELDER_API BoneObject final : public SceneObjectOf<::Object>, private ParameterBlock {
 public:
  static constexpr int kParameterCount = 4;

  explicit BoneObject(InstancePool& pool);

  float Parameter(int index) const { return parameters_.at(static_cast<std::size_t>(index)); }

  std::vector<double> Parameters() const override {
    return {parameters_.begin(), parameters_.end()};
  }
  [[nodiscard]] bool SetParameters(const std::vector<double>& values) override;

  ParameterBlock* GetFirstParameterBlock() override { return this; }

 private:
  bool SetValue(int index, TimeValue time, float value) override;
  float GetFloat(int index, TimeValue time) override;

  std::array<float, kParameterCount> parameters_;
};

}  // namespace host
