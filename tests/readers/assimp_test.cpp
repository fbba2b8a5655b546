#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "tests/readers/assimp_skeleton.h"
#include "tests/readers/skeleton_samples.h"

namespace {

using orvane::Point;
using test::AssimpJoint;
using test::AssimpPlace;
using test::AssimpSkeleton;
using test::SkeletonSample;

double Distance(const aiVector3t<double>& left, const Point& right) {
  return std::hypot(left.x - right[0], left.y - right[1], left.z - right[2]);
}

// How far a joint or an end is from where it has to be, at most.
double GreatestError(const AssimpSkeleton& skeleton, const SkeletonSample& sample) {
  double greatest = 0;
  for (std::size_t frame = 0; frame < sample.positions.size(); ++frame) {
    const std::vector<AssimpPlace> places = skeleton.PlacesAt(static_cast<unsigned int>(frame));
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
    for (const AssimpJoint& joint : skeleton.joints()) {
      if (joint.motion != nullptr) names.emplace_back(joint.node->mName.C_Str());
    }
    ASSERT_EQ(names, sample.names);
    EXPECT_LE(GreatestError(skeleton, sample), sample.tolerance);
  });
  EXPECT_GE(count, 2 * 201);
}

}  // namespace
