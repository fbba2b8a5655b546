#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <nlohmann/json.hpp>
#include <vector>

#include "host/gltf/file/binary_data.h"
#include "host/gltf/file/node_tree.h"
#include "host/gltf/viewer/shape.h"
#include "host/gltf/viewer/viewer_space.h"

// The vertices of bones. There may be very many bones, and each has more than a kilobyte of
// vertices: they are made bone by bone when the file is written, and kept nowhere.

namespace host::gltf {

// The bones among the nodes of a tree, as they stand at one time. The tree, and the scene, outlive
// it.
class Bones {
 public:
  // `time` is in ticks.
  Bones(const NodeTree& tree, const ViewerSpace& space, TimeValue time)
      : tree_(tree), space_(space), time_(time) {}

  const Node& NodeAt(std::size_t index) const { return *tree_[index].node; }
  const ViewerSpace& Space() const { return space_; }
  TimeValue Time() const { return time_; }

  // Of the bone that node number `index` of the tree shows: the way back from where its joint
  // stands, and what is drawn of it in the world.
  Matrix3 InverseOf(std::size_t index) const;
  Octahedron ShapeOf(std::size_t index) const;
  FaceNormals NormalsOf(std::size_t index) const;

 private:
  // In the space of the object.
  Octahedron OwnShapeOf(const Node& node) const;

  const NodeTree& tree_;
  ViewerSpace space_;
  TimeValue time_;
};

// Those bones of a skin that have one material: a primitive of its mesh.
class BonePrimitive {
 public:
  // `bones` outlive it, and the data that it is stored in.
  explicit BonePrimitive(std::shared_ptr<const Bones> bones) : bones_(std::move(bones)) {}

  // Adds the bone of node number `index`, which follows joint number `joint` of the skin. Throws a
  // Refusal when its shape is not finite.
  void Add(std::size_t index, std::uint16_t joint);

  // Stores the vertices in `data`, and returns the primitive.
  // REQUIRES: there is a bone; nothing is added any more.
  nlohmann::json StoreIn(BinaryData& data, int material) const;

 private:
  struct JointedBone {
    std::uint32_t index;
    std::uint16_t joint;
  };
  using JointedBones = std::vector<JointedBone>;

  // MadeNumbers of `bytes` for each bone, which `append`(bone, output) makes.
  template <typename Append>
  MadeNumbers ForEachBone(std::size_t bytes, const Append& append) const;

  std::shared_ptr<const Bones> bones_;
  std::shared_ptr<JointedBones> jointed_ = std::make_shared<JointedBones>();
  Bounds bounds_{3};
};

}  // namespace host::gltf
