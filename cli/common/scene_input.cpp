#include "cli/common/scene_input.h"

#include <algorithm>
#include <cassert>
#include <optional>
#include <utility>

#include "cli/common/failure.h"
#include "cli/common/input_files.h"
#include "formats/text/files.h"
#include "inspect/check/content_kind.h"
#include "inspect/check/similar_words.h"
#include "platform/input_file.h"

namespace cli {
namespace {

using orvane::UnknownName;

// In the order of `orvane scene`: each node before its children, and those in their order.
std::vector<host::Node*> NodesOf(host::Scene& scene) {
  std::vector<host::Node*> nodes;
  std::vector<host::Node*> waiting = {&scene.Root()};
  while (!waiting.empty()) {
    host::Node* node = waiting.back();
    waiting.pop_back();
    if (!node->IsRoot()) nodes.push_back(node);
    waiting.insert(waiting.end(), node->Children().rbegin(), node->Children().rend());
  }
  return nodes;
}

std::vector<host::Node*> NodesNamed(host::Scene& scene, const std::string& name) {
  std::vector<host::Node*> nodes = NodesOf(scene);
  std::erase_if(nodes, [&name](const host::Node* node) { return node->Name() != name; });
  return nodes;
}

std::vector<std::string> NamesIn(host::Scene& scene) {
  std::vector<std::string> names;
  for (const host::Node* node : NodesOf(scene)) names.push_back(node->Name());
  return names;
}

// What the file is, when that can be seen, and else why it is `refused`.
Complaint ComplainAboutScene(const std::string& path, std::string_view bytes,
                             const std::string& refusal) {
  using enum orvane::ContentKind;
  const auto kind = orvane::FindOtherKind(bytes, kOrvaneScene);
  if (!kind || *kind == kGltf) return {path, refusal, ""};
  const bool is_taken = *kind == kHtr || *kind == kTrc;
  return {path, orvane::DescribeOtherKind(*kind, "an orvane scene"),
          is_taken ? "\"orvane import\" makes a scene of it." : orvane::WordsFor(*kind).advice};
}

// Builds the scene in the file `path` in `scene` by `read`, which returns why it is refused.
template <typename Read>
void ReadBy(const std::string& path, host::Scene& scene, const Read& read) {
  assert(scene.NodeCount() == 0);
  RequireNoStandardInput(path, "A scene");
  const std::string reason = platform::WhyUnreadable(path);
  if (!reason.empty()) throw Failure{ExitStatus::kInputOutput, {{path, reason, ""}}};
  const std::optional<std::string> bytes = orvane::ReadFileBytes(path);
  if (!bytes) throw Failure{ExitStatus::kInputOutput, {{path, "could not be read", ""}}};
  const std::string refusal = read(*bytes, scene);
  if (!refusal.empty()) {
    throw Failure{ExitStatus::kRefused, {ComplainAboutScene(path, *bytes, refusal)}};
  }
}

void AddOnce(UnknownName name, std::vector<UnknownName>& names) {
  const bool is_there = std::any_of(names.begin(), names.end(), [&name](const UnknownName& each) {
    return each.name == name.name;
  });
  if (!is_there) names.push_back(std::move(name));
}

}  // namespace

void ReadSceneFile(const std::string& path, host::Scene& scene) {
  ReadBy(path, scene, [](std::string_view bytes, host::Scene& read) {
    return host::gltf::ReadScene(bytes, read);
  });
}

host::gltf::SkinReading ReadSceneOrSkins(const std::string& path,
                                         const host::gltf::SkinOptions& options,
                                         host::Scene& scene) {
  host::gltf::SkinReading reading;
  ReadBy(path, scene, [&](std::string_view bytes, host::Scene& read) {
    return host::gltf::ReadSceneOrSkins(bytes, options, read, reading);
  });
  return reading;
}

SelectionMade Select(host::Scene& scene, const std::vector<std::string>& names) {
  SelectionMade made;
  if (!names.empty()) scene.ClearSelection();
  for (const std::string& name : names) {
    const std::vector<host::Node*> nodes = NodesNamed(scene, name);
    if (nodes.empty()) {
      AddOnce({name, std::string(orvane::MostSimilar(name, NamesIn(scene)))}, made.unknown);
      continue;
    }
    if (nodes.size() > 1) {
      made.complaints.push_back(
          {"--select", std::to_string(nodes.size()) + " nodes of the scene are named " + name,
           "The first is taken, in the order of \"orvane scene\"."});
    }
    scene.Select(*nodes.front());
  }
  return made;
}

std::vector<Complaint> ComplainAbout(const std::vector<UnknownName>& unknown) {
  std::vector<Complaint> complaints;
  complaints.reserve(unknown.size());
  for (const UnknownName& each : unknown) {
    complaints.push_back({"--select", "nothing in the scene is named " + each.name, ""});
  }
  return complaints;
}

}  // namespace cli
