#pragma once

#include <string>
#include <vector>

#include "host/scene/scene.h"

namespace test {

// A scene of some kind that every test of whole files goes through.
struct SampleScene {
  std::string name;
  void (*build)(host::Scene& scene);
};

const std::vector<SampleScene>& SampleScenes();

}  // namespace test
