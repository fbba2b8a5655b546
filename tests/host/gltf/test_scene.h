#pragma once

#include <string>
#include <vector>

#include "host/scene/scene.h"

// Scenes for tests: nodes with objects, set up in one call each. `parent` null: under the root.

namespace test {

struct BoneSize {
  float length = 100.0F;
  float width = 20.0F;
  float height = 20.0F;
};

host::Node& AddBone(host::Scene& scene, host::Node* parent, const std::string& name,
                    const BoneSize& size = {});
host::Node& AddDummy(host::Scene& scene, host::Node* parent, const std::string& name);
host::Node& AddSphere(host::Scene& scene, host::Node* parent, const std::string& name,
                      float radius);
host::Node& AddPoint(host::Scene& scene, host::Node* parent, const std::string& name);

// Makes the rotation controller of `node` a TCB controller.
void UseTcbRotation(host::Scene& scene, host::Node& node);

// A turn by `degrees` about the host's X, Y or Z axis (0, 1 or 2).
Quat TurnAbout(int axis, double degrees);

}  // namespace test
