#include "host/gltf/joints/joint_bones.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

#include "host/gltf/file/names.h"
#include "host/gltf/viewer/viewer_space.h"
#include "sdk/paramblk2/parameter_block.h"

namespace host::gltf {

namespace {

// What takes X to X, Y, Z, -X, -Y or -Z. Joints along Y, as most programs have them, are segments
// with the same axes in a motion file.
constexpr std::array<std::array<Triple, 3>, 6> kTurns = {{
    {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}},
    {{{0, 1, 0}, {1, 0, 0}, {0, 0, -1}}},
    {{{0, 0, 1}, {0, 1, 0}, {-1, 0, 0}}},
    {{{-1, 0, 0}, {0, -1, 0}, {0, 0, 1}}},
    {{{0, -1, 0}, {1, 0, 0}, {0, 0, 1}}},
    {{{0, 0, -1}, {0, 1, 0}, {1, 0, 0}}},
}};

Transform TurnToLongAxis(const JointTree& tree, const std::vector<Placement>& rest) {
  std::array<double, kTurns.size()> ways{};
  for (std::size_t i = 0; i < tree.size(); ++i) {
    if (!tree[i].is_joint || tree[i].parent == kNoNode) continue;
    const Triple way = Product(Undone(rest[tree[i].parent].turn), rest[i].turn).origin;
    for (std::size_t axis = 0; axis < 3; ++axis) {
      ways[way[axis] < 0.0 ? axis + 3 : axis] += std::abs(way[axis]);
    }
  }
  const auto longest = std::max_element(ways.begin(), ways.end());
  return {kTurns[static_cast<std::size_t>(longest - ways.begin())], {0, 0, 0}};
}

Matrix3 HostMatrix(const ViewerSpace& space, const Transform& transform) {
  const auto& [x, y, z] = transform.axes;
  const Triple& origin = transform.origin;
  return space.HostMatrix({x[0], x[1], x[2], 0.0, y[0], y[1], y[2], 0.0, z[0], z[1], z[2], 0.0,
                           origin[0], origin[1], origin[2], 1.0});
}

// `name` as a motion file can have it: blanks part its words.
std::string WithoutBlanks(std::string name) {
  std::replace_if(
      name.begin(), name.end(), [](char c) { return 0 <= c && c <= ' '; }, '_');
  return name;
}

}  // namespace

JointBones::JointBones(const JointTree& tree, const std::vector<FileNode>& nodes,
                       const std::vector<Placement>& rest, const FrameGrid& grid, Scene& scene)
    : tree_(tree),
      scene_(scene),
      first_tick_(grid.first_number * scene.Animation().TicksPerFrame()),
      frame_ticks_(scene.Animation().TicksPerFrame()),
      turn_(TurnToLongAxis(tree, rest)),
      bones_(tree.size()) {
  const ViewerSpace space(scene.MillimetersPerUnit());
  std::vector<double> lengths(tree.size());
  for (std::size_t i = 0; i < tree.size(); ++i) {
    if (!tree[i].is_joint || tree[i].parent == kNoNode) continue;
    double& length = lengths[tree[i].parent];
    length = std::max(length, Within(i, rest).origin[0]);
  }
  for (std::size_t i = 0; i < tree.size(); ++i) {
    if (!tree[i].is_joint) continue;
    bones_[i] = &MakeBone(i, NameFor(i, nodes), space.HostLength(lengths[i]));
  }
  KeyAt(first_tick_ - frame_ticks_, rest);
}

std::string JointBones::NameFor(std::size_t joint, const std::vector<FileNode>& nodes) {
  const std::string& own = nodes[tree_[joint].node].name;
  const std::string name = scene_.MakeNameUnique(
      own.empty() ? "joint_" + std::to_string(tree_[joint].node) : WithoutBlanks(own));
  if (name != own) renamed_.push_back(own);
  return name;
}

Node& JointBones::MakeBone(std::size_t joint, const std::string& name, float length) {
  auto* const object =
      static_cast<::Object*>(scene_.CreateInstance(kGeometricObjectSuperClass, kBoneClass));
  Node& bone = *scene_.CreateNode(object);
  bone.SetName(name.c_str());
  if (tree_[joint].parent != kNoNode) bones_[tree_[joint].parent]->AttachChild(&bone, false);
  bone.SetBoneEnabled(1, first_tick_ - frame_ticks_);
  object->GetFirstParameterBlock()->SetValue(kBoneLengthParameter, 0, length);
  return bone;
}

Transform JointBones::Within(std::size_t joint, const std::vector<Placement>& placements) const {
  const Transform own = Product(placements[joint].turn, turn_);
  const std::size_t parent = tree_[joint].parent;
  if (parent == kNoNode) return own;
  return Product(Undone(Product(placements[parent].turn, turn_)), own);
}

void JointBones::KeyAt(TimeValue tick, const std::vector<Placement>& placements) {
  const ViewerSpace space(scene_.MillimetersPerUnit());
  for (std::size_t i = 0; i < tree_.size(); ++i) {
    if (bones_[i] == nullptr) continue;
    Point3 position;
    Quat rotation;
    Point3 scale;
    DecomposeMatrix(HostMatrix(space, Within(i, placements)), position, rotation, scale);
    bones_[i]->Transform()->Position().SetKey(tick, position);
    bones_[i]->Transform()->Rotation().SetKey(tick, rotation);
  }
}

void JointBones::Key(std::size_t frame, const std::vector<Placement>& placements) {
  KeyAt(first_tick_ + static_cast<TimeValue>(frame) * frame_ticks_, placements);
}

}  // namespace host::gltf
