#include "host/gltf/joints/file_nodes.h"

#include <cmath>
#include <cstdint>

#include "host/gltf/file/refusal.h"

namespace host::gltf {

namespace {

template <std::size_t kSize>
void ReadNumbers(const JsonField& node, const char* name, std::array<double, kSize>& numbers) {
  const auto list = node.FindMember(name);
  if (!list) return;
  if (list->Size() != kSize) list->Refuse("no list of " + std::to_string(kSize) + " numbers");
  for (std::size_t i = 0; i < kSize; ++i) numbers[i] = list->Element(i).Float();
}

std::optional<Transform> MatrixIn(const JsonField& node) {
  if (!node.FindMember("matrix")) return std::nullopt;
  std::array<double, 16> columns{};
  ReadNumbers(node, "matrix", columns);
  Transform transform;
  for (std::size_t axis = 0; axis < 3; ++axis) {
    transform.axes[axis] = {columns[axis * 4], columns[axis * 4 + 1], columns[axis * 4 + 2]};
  }
  transform.origin = {columns[12], columns[13], columns[14]};
  return transform;
}

FileNode NodeIn(const JsonField& field) {
  FileNode node;
  if (const auto name = field.FindMember("name")) node.name = name->Text();
  ReadNumbers(field, "translation", node.parts.translation);
  ReadNumbers(field, "rotation", node.parts.rotation);
  ReadNumbers(field, "scale", node.parts.scale);
  node.matrix = MatrixIn(field);
  return node;
}

void ReadChildren(const JsonField& list, std::size_t parent, std::vector<FileNode>& nodes) {
  for (std::size_t i = 0; i < list.Size(); ++i) {
    const JsonField field = list.Element(i);
    const auto child =
        static_cast<std::size_t>(field.Whole(0, static_cast<std::int64_t>(nodes.size()) - 1));
    if (nodes[child].parent != kNoNode || child == parent) {
      field.Refuse("a node that has a parent already");
    }
    nodes[child].parent = parent;
    nodes[parent].children.push_back(child);
  }
}

}  // namespace

Transform TransformOf(const NodeParts& parts) {
  auto [x, y, z, w] = parts.rotation;
  const double length = std::sqrt(x * x + y * y + z * z + w * w);
  const double factor = length > 0.0 ? 2.0 / (length * length) : 0.0;
  Transform transform;
  transform.axes = {
      {{1 - factor * (y * y + z * z), factor * (x * y + z * w), factor * (x * z - y * w)},
       {factor * (x * y - z * w), 1 - factor * (x * x + z * z), factor * (y * z + x * w)},
       {factor * (x * z + y * w), factor * (y * z - x * w), 1 - factor * (x * x + y * y)}}};
  for (std::size_t axis = 0; axis < 3; ++axis) {
    for (double& component : transform.axes[axis]) component *= parts.scale[axis];
  }
  transform.origin = parts.translation;
  return transform;
}

std::vector<FileNode> FileNodesIn(const JsonField& document) {
  const auto list = document.FindMember("nodes");
  const std::size_t count = list ? list->Size() : 0;
  std::vector<FileNode> nodes;
  nodes.reserve(count);
  for (std::size_t i = 0; i < count; ++i) nodes.push_back(NodeIn(list->Element(i)));
  for (std::size_t i = 0; i < count; ++i) {
    const auto children = list->Element(i).FindMember("children");
    if (children) ReadChildren(*children, i, nodes);
  }
  return nodes;
}

// Nodes that hang from each other in a circle hang from no other.
std::vector<std::size_t> DepthFirst(const std::vector<FileNode>& nodes) {
  std::vector<std::size_t> order;
  order.reserve(nodes.size());
  std::vector<std::size_t> waiting;
  for (std::size_t i = nodes.size(); i-- > 0;) {
    if (nodes[i].parent == kNoNode) waiting.push_back(i);
  }
  while (!waiting.empty()) {
    const std::size_t node = waiting.back();
    waiting.pop_back();
    order.push_back(node);
    const std::vector<std::size_t>& children = nodes[node].children;
    waiting.insert(waiting.end(), children.rbegin(), children.rend());
  }
  if (order.size() < nodes.size())
    throw Refusal("The scene in the file is damaged: nodes hang from each other in a circle.");
  return order;
}

}  // namespace host::gltf
