#include "host/gltf/viewer/skins.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "host/gltf/file/json_text.h"
#include "host/gltf/file/names.h"
#include "host/gltf/viewer/skin_geometry.h"
#include "host/scene/bone_object.h"

namespace host::gltf {

namespace {

// A joint's number is two bytes in the mesh, and viewers hold all of a skin's joints at once.
constexpr std::size_t kMostBonesInSkin = 60'000;

// The bones of one skin: indices of nodes in one tree under the scene's root.
using BoneGroup = std::vector<std::size_t>;

bool ShowsBone(const Node& node) {
  return dynamic_cast<const BoneObject*>(node.ShownObject()) != nullptr;
}

std::vector<BoneGroup> BoneGroupsOf(const NodeTree& tree) {
  std::vector<BoneGroup> groups;
  for (std::size_t index = 0; index < tree.size(); ++index) {
    if (!ShowsBone(*tree[index].node)) continue;
    const bool joins = !groups.empty() && groups.back().size() < kMostBonesInSkin &&
                       tree[groups.back().front()].top == tree[index].top;
    if (!joins) groups.emplace_back();
    groups.back().push_back(index);
  }
  return groups;
}

class SkinMaker {
 public:
  SkinMaker(std::shared_ptr<const Bones> bones, Materials& materials)
      : bones_(std::move(bones)), materials_(materials) {}

  // Makes the node number `index` its skin's next joint.
  void AddBone(std::size_t index);

  // The index of the finished skin and of its mesh.
  int StoreSkin(Document& document) const;
  int StoreMesh(Document& document) const;

 private:
  std::shared_ptr<const Bones> bones_;
  Materials& materials_;
  BoneGroup joints_;
  std::map<int, BonePrimitive> parts_;  // by material
};

void SkinMaker::AddBone(std::size_t index) {
  const auto joint = static_cast<std::uint16_t>(joints_.size());
  joints_.push_back(index);
  const int material = materials_.Of(bones_->NodeAt(index).WireColor());
  parts_.try_emplace(material, bones_).first->second.Add(index, joint);
}

int SkinMaker::StoreSkin(Document& document) const {
  constexpr std::size_t kMatrixSize = 16 * sizeof(float);
  const auto append = [bones = bones_, joints = joints_](Output& output) {
    for (const std::size_t index : joints) {
      output.AppendNumbers(Rounded(bones->Space().Matrix(bones->InverseOf(index))));
    }
  };
  const int inverses = document.data.AddMatrices({kMatrixSize * joints_.size(), append});
  return document.skins.AddText([&](std::string& text) {
    JsonObject skin(text);
    skin.Add("inverseBindMatrices", inverses);
    skin.Add("joints", joints_);
    skin.End();
  });
}

int SkinMaker::StoreMesh(Document& document) const {
  auto primitives = nlohmann::json::array();
  for (const auto& [material, part] : parts_) {
    primitives.push_back(part.StoreIn(document.data, material));
  }
  return document.meshes.Add({{"primitives", std::move(primitives)}});
}

}  // namespace

void AddSkins(const NodeTree& tree, const ViewerSpace& space, TimeValue time, Materials& materials,
              Document& document) {
  const auto bones = std::make_shared<const Bones>(tree, space, time);
  for (const BoneGroup& group : BoneGroupsOf(tree)) {
    SkinMaker maker(bones, materials);
    for (const std::size_t index : group) maker.AddBone(index);
    const auto top = static_cast<std::size_t>(tree[group.front()].top);
    const int skin = maker.StoreSkin(document);
    document.roots.push_back(
        document.nodes.Add({{"name", ViewerName(tree[top].node->Name()) + " bones"},
                            {"skin", skin},
                            {"mesh", maker.StoreMesh(document)}}));
  }
}

}  // namespace host::gltf
