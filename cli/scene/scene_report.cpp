#include "cli/scene/scene_report.h"

namespace cli {

std::vector<SceneTreeEntry> ListScene(const host::Scene& scene) {
  std::vector<SceneTreeEntry> entries;
  std::vector<SceneTreeEntry> waiting;
  const auto push_children = [&waiting](const host::Node& parent, std::size_t index,
                                        std::size_t depth) {
    const std::vector<host::Node*>& children = parent.Children();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
      waiting.push_back({*child, index, depth});
    }
  };
  push_children(scene.Root(), 0, 0);
  while (!waiting.empty()) {
    SceneTreeEntry entry = waiting.back();
    waiting.pop_back();
    const std::size_t index = entries.size();
    if (entry.depth == 0) entry.parent = index;
    entries.push_back(entry);
    push_children(*entry.node, index, entry.depth + 1);
  }
  return entries;
}

}  // namespace cli
