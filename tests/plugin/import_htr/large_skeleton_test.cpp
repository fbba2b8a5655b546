#include <gtest/gtest.h>

#include <string>

#include "plugin/exchange/host_session.h"
#include "plugin/import_htr/motion_applier.h"
#include "plugin/import_htr/skeleton_creator.h"
#include "tests/plugin/import_htr/skeleton_fixture.h"

// Skeletons of a size at which anything that grows with the square would run into the time limit,
// and any recursion out of stack.

namespace orvane {
namespace {

constexpr int kMany = 100'000;

class LargeSkeletonTest : public test::SkeletonTest {
 protected:
  static std::string Name(int index) { return "S" + std::to_string(index); }

  // Adds a segment with one frame.
  HtrSegment& AddMoving(const std::string& name, HtrSegment* parent = nullptr) {
    HtrSegment& segment = Add(name, parent);
    segment.AddFrame(Vector3(1, 2, 3), Vector3(), 1.0);
    return segment;
  }

  bool Apply(INode& node, const HtrSegment& segment) {
    const OpenProgressBar progress(interface(), "Test");
    const KeyTimes times(160, 1, 1);
    return MotionApplier(interface(), options_, times, kMany, kMany + 1).Apply(node, segment);
  }
};

TEST_F(LargeSkeletonTest, AChainOfSegmentsIsCreated) {
  HtrSegment* segment = &Add(Name(0));
  const HtrSegment& root = *segment;
  for (int i = 1; i < kMany; ++i) segment = &Add(Name(i), segment);
  ASSERT_NE(SkeletonCreator(interface(), options_).Create(root), nullptr);
  EXPECT_EQ(scene().NodeCount(), std::size_t{kMany});
}

TEST_F(LargeSkeletonTest, AChainOfBonesIsKeyedToItsEnd) {
  HtrSegment* segment = &AddMoving(Name(0));
  host::Node* bone = &AddBone(Name(0));
  const HtrSegment& root = *segment;
  host::Node& root_bone = *bone;
  for (int i = 1; i < kMany; ++i) {
    segment = &AddMoving(Name(i), segment);
    bone = &AddBone(Name(i), bone);
  }
  EXPECT_TRUE(Apply(root_bone, root));
  EXPECT_EQ(bone->Transform()->Position().KeyCount(), 1U);
}

TEST_F(LargeSkeletonTest, SiblingsAreAllKeyed) {
  HtrSegment& root = AddMoving("Root");
  host::Node& root_bone = AddBone("Root");
  for (int i = 0; i < kMany; ++i) {
    AddMoving(Name(i), &root);
    AddBone(Name(i), &root_bone);
  }
  EXPECT_TRUE(Apply(root_bone, root));
  for (int i = 0; i < kMany; ++i) {
    const auto* bone = dynamic_cast<host::Node*>(root_bone.GetChildNode(i));
    ASSERT_EQ(bone->Transform()->Position().KeyCount(), 1U) << i;
  }
}

}  // namespace
}  // namespace orvane
