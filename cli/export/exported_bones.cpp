#include "cli/export/exported_bones.h"

#include <string>
#include <vector>

#include "cli/common/scene_bones.h"

namespace cli {
namespace {

// The bone to start from; null when there is none.
const host::Node* FindRoot(const host::Scene& scene) {
  if (scene.Selection().empty()) return nullptr;
  const host::Node* selected = scene.Selection().front();
  return IsBone(*selected) ? selected : FirstBoneChild(*selected);
}

// The plug-in goes by the name, and leaves out what hangs from one, too.
bool IsEffector(const host::Node& bone) {
  return bone.Name().find("Effector") != std::string::npos;
}

}  // namespace

std::int64_t CountExportedBones(const host::Scene& scene) {
  const host::Node* root = FindRoot(scene);
  std::int64_t count = 0;
  std::vector<const host::Node*> waiting;
  if (root != nullptr) waiting.push_back(root);
  while (!waiting.empty()) {
    const host::Node* bone = waiting.back();
    waiting.pop_back();
    if (IsEffector(*bone)) continue;
    ++count;
    for (const host::Node* child : bone->Children()) {
      if (IsBone(*child)) waiting.push_back(child);
    }
  }
  return count;
}

}  // namespace cli
