#include "host/gltf/joints/joint_tree.h"

#include <algorithm>
#include <cstdint>

namespace host::gltf {

namespace {

std::vector<bool> JointsIn(const JsonField& document, std::size_t count) {
  std::vector<bool> is_joint(count);
  const auto skins = document.FindMember("skins");
  const std::size_t skin_count = skins ? skins->Size() : 0;
  for (std::size_t skin = 0; skin < skin_count; ++skin) {
    const JsonField joints = skins->Element(skin).Member("joints");
    for (std::size_t i = 0; i < joints.Size(); ++i) {
      const auto joint = joints.Element(i).Whole(0, static_cast<std::int64_t>(count) - 1);
      is_joint[static_cast<std::size_t>(joint)] = true;
    }
  }
  return is_joint;
}

}  // namespace

JointTree JointTreeOf(const JsonField& document, const std::vector<FileNode>& nodes) {
  const std::vector<bool> is_joint = JointsIn(document, nodes.size());
  const std::vector<std::size_t> order = DepthFirst(nodes);
  std::vector<bool> leads_to_joint = is_joint;
  for (auto node = order.rbegin(); node != order.rend(); ++node) {
    const std::size_t above = nodes[*node].parent;
    if (leads_to_joint[*node] && above != kNoNode) leads_to_joint[above] = true;
  }
  JointTree tree;
  tree.reserve(
      static_cast<std::size_t>(std::count(leads_to_joint.begin(), leads_to_joint.end(), true)));
  std::vector<std::size_t> places(nodes.size(), kNoNode);
  for (const std::size_t node : order) {
    if (!leads_to_joint[node]) continue;
    places[node] = tree.size();
    TreeNode placed{node};
    placed.is_joint = is_joint[node];
    if (nodes[node].parent != kNoNode) {
      placed.above = places[nodes[node].parent];
      const TreeNode& above = tree[placed.above];
      placed.parent = above.is_joint ? placed.above : above.parent;
      placed.top = above.top;
    }
    if (placed.is_joint && placed.top == kNoNode) placed.top = tree.size();
    tree.push_back(placed);
  }
  return tree;
}

}  // namespace host::gltf
