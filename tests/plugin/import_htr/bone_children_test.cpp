#include "plugin/import_htr/bone_children.h"

#include <gtest/gtest.h>

#include "tests/plugin/import_htr/skeleton_fixture.h"

namespace orvane {
namespace {

using BoneChildrenTest = test::SkeletonTest;

TEST_F(BoneChildrenTest, FindsBonesByTheirExactName) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  const BoneChildren bones(hips);
  EXPECT_EQ(bones.Find("Leg"), &leg);
  EXPECT_EQ(bones.Find("leg"), nullptr);
  EXPECT_EQ(bones.Find("Leg "), nullptr);
  EXPECT_EQ(bones.Find("Hips"), nullptr);
}

TEST_F(BoneChildrenTest, TakesTheFirstOfSeveralOfOneName) {
  host::Node& hips = AddBone("Hips");
  host::Node& first = AddBone("Leg", &hips);
  AddBone("Leg", &hips);
  EXPECT_EQ(BoneChildren(hips).Find("Leg"), &first);
}

TEST_F(BoneChildrenTest, LooksOnlyAtBonesAndOnlyOneLevelDown) {
  host::Node& hips = AddBone("Hips");
  AddDummy("Leg", &hips);
  host::Node& other = AddBone("Other", &hips);
  AddBone("Foot", &other);
  const BoneChildren bones(hips);
  EXPECT_EQ(bones.Find("Leg"), nullptr);
  EXPECT_EQ(bones.Find("Foot"), nullptr);
  EXPECT_EQ(bones.Find("Other"), &other);
}

}  // namespace
}  // namespace orvane
