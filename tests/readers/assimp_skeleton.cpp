#include "tests/readers/assimp_skeleton.h"

#include <algorithm>

namespace test {
namespace {

aiVector3t<double> AsDouble(const aiVector3D& vector) { return {vector.x, vector.y, vector.z}; }

AssimpPlace LocalPlace(const AssimpJoint& joint, unsigned int frame) {
  if (joint.motion == nullptr) {
    const aiMatrix4x4& matrix = joint.node->mTransformation;
    return {{}, {matrix.a4, matrix.b4, matrix.c4}};
  }
  const unsigned int last = joint.motion->mNumPositionKeys - 1;
  const aiQuaternion& turn = joint.motion->mRotationKeys[frame].mValue;
  aiQuaterniont<double> rotation(turn.w, turn.x, turn.y, turn.z);
  rotation.Normalize();
  return {rotation.GetMatrix(),
          AsDouble(joint.motion->mPositionKeys[std::min(frame, last)].mValue)};
}

}  // namespace

AssimpSkeleton::AssimpSkeleton(const std::string& bvh)
    : scene_(importer_.ReadFileFromMemory(bvh.data(), bvh.size(), 0, "bvh")) {
  if (scene_ == nullptr || scene_->mNumAnimations != 1) return;
  const aiAnimation& animation = *scene_->mAnimations[0];
  for (unsigned int channel = 0; channel < animation.mNumChannels; ++channel) {
    const aiNodeAnim* motion = animation.mChannels[channel];
    motions_[motion->mNodeName.C_Str()] = motion;
  }
  Add(*scene_->mRootNode, 0);
}

std::vector<AssimpPlace> AssimpSkeleton::PlacesAt(unsigned int frame) const {
  std::vector<AssimpPlace> places;
  places.reserve(joints_.size());
  for (const AssimpJoint& joint : joints_) {
    AssimpPlace local = LocalPlace(joint, frame);
    if (places.size() != joint.parent) {
      const AssimpPlace& parent = places[joint.parent];
      local = {parent.turn * local.turn, parent.at + parent.turn * local.at};
    }
    places.push_back(local);
  }
  return places;
}

void AssimpSkeleton::Add(const aiNode& node, std::size_t parent) {
  const std::size_t index = joints_.size();
  const auto motion = motions_.find(node.mName.C_Str());
  joints_.push_back({&node, motion == motions_.end() ? nullptr : motion->second, parent});
  for (unsigned int child = 0; child < node.mNumChildren; ++child) {
    Add(*node.mChildren[child], index);
  }
}

}  // namespace test
