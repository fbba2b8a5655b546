#include "cli/common/scene_input.h"

#include <cassert>
#include <optional>

#include "cli/common/failure.h"
#include "formats/text/files.h"
#include "host/gltf/reader.h"
#include "platform/input_file.h"

namespace cli {
namespace {

// In the order of `orvane scene`: each node before its children, and those in their order.
std::vector<host::Node*> NodesNamed(host::Scene& scene, const std::string& name) {
  std::vector<host::Node*> found;
  std::vector<host::Node*> waiting = {&scene.Root()};
  while (!waiting.empty()) {
    host::Node* node = waiting.back();
    waiting.pop_back();
    if (!node->IsRoot() && node->Name() == name) found.push_back(node);
    waiting.insert(waiting.end(), node->Children().rbegin(), node->Children().rend());
  }
  return found;
}

}  // namespace

void ReadSceneFile(const std::string& path, host::Scene& scene) {
  assert(scene.NodeCount() == 0);
  const std::string reason = platform::WhyUnreadable(path);
  if (!reason.empty()) throw Failure{ExitStatus::kInputOutput, {{path, reason, ""}}};
  const std::optional<std::string> bytes = orvane::ReadFileBytes(path);
  if (!bytes) throw Failure{ExitStatus::kInputOutput, {{path, "could not be read", ""}}};
  const std::string refusal = host::gltf::ReadScene(*bytes, scene);
  if (!refusal.empty()) throw Failure{ExitStatus::kRefused, {{path, refusal, ""}}};
}

std::vector<Complaint> Select(host::Scene& scene, const std::vector<std::string>& names) {
  std::vector<Complaint> complaints;
  if (!names.empty()) scene.ClearSelection();
  for (const std::string& name : names) {
    const std::vector<host::Node*> nodes = NodesNamed(scene, name);
    if (nodes.empty()) {
      complaints.push_back({"--select", "nothing in the scene is named " + name, ""});
      continue;
    }
    if (nodes.size() > 1) {
      complaints.push_back({"--select",
                            std::to_string(nodes.size()) + " nodes of the scene are named " + name,
                            "The first is taken, in the order of \"orvane scene\"."});
    }
    scene.Select(*nodes.front());
  }
  return complaints;
}

}  // namespace cli
