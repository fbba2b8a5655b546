#pragma once

#include <cstddef>
#include <ostream>
#include <string>
#include <vector>

#include "host/scene/scene.h"

// What `orvane scene` tells of the scene from `file`: as a page for people, or all of it as JSON.
// docs/command-line.md documents the fields.

namespace cli {

struct SceneTreeEntry {
  const host::Node* node = nullptr;
  std::size_t parent = 0;  // index of the parent's entry; its own index under the scene's root
  std::size_t depth = 0;   // 0 under the scene's root
};

// All nodes of `scene` but its root: parents before their children, siblings in their order. Takes
// any depth.
[[nodiscard]] std::vector<SceneTreeEntry> ListScene(const host::Scene& scene);

void PrintScenePage(const std::string& file, const host::Scene& scene, std::ostream& out);
void PrintSceneJson(const std::string& file, const host::Scene& scene, std::ostream& out);

}  // namespace cli
