#pragma once

#include <array>

#include "host/scene/scene_object.h"
#include "sdk/paramblk2/parameter_block.h"

// What a sphere node shows. The node that shows it owns it, and until then the scene's pool does.

namespace host {

// A sphere primitive: float parameters 0 (radius, in system units) and 3, whole-number parameters
// 1, 2, 4, 5 and 6. Parameters do not change over time.
class SKELDER_API SphereObject final : public SceneObjectOf<::Object>, private IParamBlock {
 public:
  static constexpr int kParameterCount = 7;

  explicit SphereObject(InstancePool& pool);

  // A parameter of either type.
  double Parameter(int index) const { return parameters_.at(static_cast<std::size_t>(index)); }
  float Radius() const { return static_cast<float>(Parameter(kSphereRadiusParameter)); }

  std::vector<double> Parameters() const override {
    return {parameters_.begin(), parameters_.end()};
  }
  [[nodiscard]] bool SetParameters(const std::vector<double>& values) override;

  IParamBlock* GetParamBlock() override { return this; }

  // The parameters have the numbers of the block.
  int GetParamBlockIndex(int i) override;

 private:
  bool SetValue(int index, TimeValue time, float value) override;
  bool SetValue(int index, TimeValue time, int value) override;

  std::array<double, kParameterCount> parameters_;
};

}  // namespace host
