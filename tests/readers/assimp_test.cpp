#include <assimp/scene.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <assimp/Importer.hpp>
#include <cmath>
#include <string>
#include <unordered_map>
#include <vector>

#include "tests/readers/skeleton_samples.h"

namespace {

using orvane::Point;
using test::SkeletonSample;

// A place in the world, in double precision.
struct Place {
  aiMatrix3x3t<double> turn;
  aiVector3t<double> at;
};

struct Joint {
  const aiNode* node = nullptr;
  const aiNodeAnim* motion = nullptr;  // null for the end of a bone
  std::size_t parent = 0;              // its own index for the root
};

aiVector3t<double> AsDouble(const aiVector3D& vector) { return {vector.x, vector.y, vector.z}; }

// The joints of a file as assimp reads it, depth first; the end of a bone behind the bone.
class AssimpSkeleton {
 public:
  explicit AssimpSkeleton(const std::string& bvh)
      : scene_(importer_.ReadFileFromMemory(bvh.data(), bvh.size(), 0, "bvh")) {
    if (scene_ == nullptr || scene_->mNumAnimations != 1) return;
    const aiAnimation& animation = *scene_->mAnimations[0];
    for (unsigned int channel = 0; channel < animation.mNumChannels; ++channel) {
      const aiNodeAnim* motion = animation.mChannels[channel];
      motions_[motion->mNodeName.C_Str()] = motion;
    }
    Add(*scene_->mRootNode, 0);
  }

  [[nodiscard]] std::string Fault() const { return importer_.GetErrorString(); }
  [[nodiscard]] const std::vector<Joint>& joints() const { return joints_; }

  [[nodiscard]] std::vector<Place> PlacesAt(unsigned int frame) const {
    std::vector<Place> places;
    for (const Joint& joint : joints_) {
      Place local = LocalPlace(joint, frame);
      if (places.size() != joint.parent) {
        const Place& parent = places[joint.parent];
        local = {parent.turn * local.turn, parent.at + parent.turn * local.at};
      }
      places.push_back(local);
    }
    return places;
  }

 private:
  void Add(const aiNode& node, std::size_t parent) {
    const std::size_t index = joints_.size();
    const auto motion = motions_.find(node.mName.C_Str());
    joints_.push_back({&node, motion == motions_.end() ? nullptr : motion->second, parent});
    for (unsigned int child = 0; child < node.mNumChildren; ++child) {
      Add(*node.mChildren[child], index);
    }
  }

  static Place LocalPlace(const Joint& joint, unsigned int frame) {
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

  Assimp::Importer importer_;
  const aiScene* scene_;
  std::unordered_map<std::string, const aiNodeAnim*> motions_;
  std::vector<Joint> joints_;
};

double Distance(const aiVector3t<double>& left, const Point& right) {
  return std::hypot(left.x - right[0], left.y - right[1], left.z - right[2]);
}

// How far a joint or an end is from where it has to be, at most.
double GreatestError(const AssimpSkeleton& skeleton, const SkeletonSample& sample) {
  double greatest = 0;
  for (std::size_t frame = 0; frame < sample.positions.size(); ++frame) {
    const std::vector<Place> places = skeleton.PlacesAt(static_cast<unsigned int>(frame));
    std::size_t joint = 0;
    for (std::size_t index = 0; index < places.size(); ++index) {
      const bool is_end = skeleton.joints()[index].motion == nullptr;
      const Point expected =
          is_end ? sample.ends[frame][joint - 1].value() : sample.positions[frame][joint++];
      greatest = std::max(greatest, Distance(places[index].at, expected));
    }
  }
  return greatest;
}

TEST(BvhReadersTest, AssimpHasAllJointsWhereTheyAre) {
  int count = 0;
  test::ForEachSkeletonSample([&count](const SkeletonSample& sample) {
    SCOPED_TRACE(sample.name);
    ++count;
    const AssimpSkeleton skeleton(sample.bvh);
    ASSERT_EQ(skeleton.Fault(), "");
    std::vector<std::string> names;
    for (const Joint& joint : skeleton.joints()) {
      if (joint.motion != nullptr) names.emplace_back(joint.node->mName.C_Str());
    }
    ASSERT_EQ(names, sample.names);
    EXPECT_LE(GreatestError(skeleton, sample), sample.tolerance);
  });
  EXPECT_GE(count, 2 * 201);
}

}  // namespace
