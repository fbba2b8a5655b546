#include "host/gltf/viewer/skins.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/gltf/file/names.h"
#include "host/gltf/viewer/geometry.h"
#include "host/gltf/viewer/shape.h"
#include "host/scene/bone_object.h"
#include "sdk/core/object.h"

namespace host::gltf {

namespace {

// A joint's number is two bytes in the mesh, and viewers hold all of a skin's joints at once.
constexpr std::size_t kMostBonesInSkin = 60'000;

constexpr double kMarkMeters = 0.005;

// The bones of one skin: indices of nodes in one tree under the scene's root.
using BoneGroup = std::vector<std::size_t>;

const BoneObject* BoneOf(const Node& node) {
  return dynamic_cast<const BoneObject*>(node.ShownObject());
}

std::vector<BoneGroup> BoneGroupsOf(const NodeTree& tree) {
  std::vector<BoneGroup> groups;
  for (std::size_t index = 0; index < tree.size(); ++index) {
    if (BoneOf(*tree[index].node) == nullptr) continue;
    const bool joins = !groups.empty() && groups.back().size() < kMostBonesInSkin &&
                       tree[groups.back().front()].top == tree[index].top;
    if (!joins) groups.emplace_back();
    groups.back().push_back(index);
  }
  return groups;
}

// How a bone is tied to its joint: where the joint stands, and the way back from there.
struct Binding {
  Matrix3 joint;
  Matrix3 inverse;
};

bool IsFinite(const Matrix3& matrix) {
  for (int row = 0; row < 4; ++row) {
    for (int column = 0; column < 3; ++column) {
      if (!std::isfinite(matrix.GetRow(row)[column])) return false;
    }
  }
  return true;
}

// A joint whose transform has no inverse is bound as if it stood at the origin, which draws the
// same; Inverse gives the identity for it.
Binding BindingOf(const Node& node, TimeValue time) {
  const Matrix3& joint = node.WorldTransform(time);
  const Matrix3 inverse = Inverse(joint);
  if (inverse == Matrix3() || !IsFinite(inverse)) return {};
  return {joint, inverse};
}

class SkinMaker {
 public:
  SkinMaker(const ViewerSpace& space, TimeValue time, Materials& materials)
      : space_(space), time_(time), materials_(materials) {}

  // Makes the node its skin's next joint.
  void AddBone(const Node& node, int index);

  // The index of the finished skin and of its mesh.
  int StoreSkin(Document& document) const;
  int StoreMesh(Document& document) const;

 private:
  Shape ShapeOf(const Node& node) const;

  const ViewerSpace& space_;
  TimeValue time_;
  Materials& materials_;
  std::vector<int> joints_;
  std::vector<float> inverses_;
  std::map<int, Geometry> parts_;  // by material
};

void SkinMaker::AddBone(const Node& node, int index) {
  const auto joint = static_cast<std::uint16_t>(joints_.size());
  const Binding binding = BindingOf(node, time_);
  const auto inverse = Rounded(space_.Matrix(binding.inverse));
  joints_.push_back(index);
  inverses_.insert(inverses_.end(), inverse.begin(), inverse.end());
  parts_[materials_.Of(node.WireColor())].AddWithJoint(Transformed(ShapeOf(node), binding.joint),
                                                       space_, node, time_, joint);
}

Shape SkinMaker::ShapeOf(const Node& node) const {
  const BoneObject& bone = *BoneOf(node);
  Shape shape = BoneShape(bone.Parameter(kBoneWidthParameter), bone.Parameter(kBoneHeightParameter),
                          bone.Parameter(kBoneLengthParameter), space_.HostLength(kMarkMeters));
  return node.ObjectOffset() ? Transformed(std::move(shape), *node.ObjectOffset()) : shape;
}

int SkinMaker::StoreSkin(Document& document) const {
  return document.skins.Add(
      {{"joints", joints_}, {"inverseBindMatrices", document.data.AddMatrices(inverses_)}});
}

int SkinMaker::StoreMesh(Document& document) const {
  auto primitives = nlohmann::json::array();
  for (const auto& [material, geometry] : parts_) {
    primitives.push_back(geometry.StoreIn(document.data, material));
  }
  return document.meshes.Add({{"primitives", std::move(primitives)}});
}

}  // namespace

void AddSkins(const NodeTree& tree, const ViewerSpace& space, TimeValue time, Materials& materials,
              Document& document) {
  for (const BoneGroup& group : BoneGroupsOf(tree)) {
    SkinMaker maker(space, time, materials);
    for (const std::size_t index : group) {
      maker.AddBone(*tree[index].node, static_cast<int>(index));
    }
    const auto top = static_cast<std::size_t>(tree[group.front()].top);
    const int skin = maker.StoreSkin(document);
    document.roots.push_back(
        document.nodes.Add({{"name", ViewerName(tree[top].node->Name()) + " bones"},
                            {"skin", skin},
                            {"mesh", maker.StoreMesh(document)}}));
  }
}

}  // namespace host::gltf
