#pragma once

#include <assimp/scene.h>

#include <assimp/Importer.hpp>
#include <cstddef>
#include <string>
#include <unordered_map>
#include <vector>

// A BVH file as assimp reads it.
namespace test {

// Where a joint is in the world, in double precision.
struct AssimpPlace {
  aiMatrix3x3t<double> turn;
  aiVector3t<double> at;
};

struct AssimpJoint {
  const aiNode* node = nullptr;
  const aiNodeAnim* motion = nullptr;  // null for the end of a bone
  std::size_t parent = 0;              // its own index for the root
};

// The joints of a file, depth first; the end of a bone behind the bone.
class AssimpSkeleton {
 public:
  explicit AssimpSkeleton(const std::string& bvh);

  // Why there is none; empty when there is.
  [[nodiscard]] std::string Fault() const { return importer_.GetErrorString(); }
  [[nodiscard]] const aiScene* scene() const { return scene_; }
  [[nodiscard]] const std::vector<AssimpJoint>& joints() const { return joints_; }

  // Of every joint, in a frame that is counted from 0.
  [[nodiscard]] std::vector<AssimpPlace> PlacesAt(unsigned int frame) const;

 private:
  void Add(const aiNode& node, std::size_t parent);

  Assimp::Importer importer_;
  const aiScene* scene_;
  std::unordered_map<std::string, const aiNodeAnim*> motions_;
  std::vector<AssimpJoint> joints_;
};

}  // namespace test
