#include "plugin/import_htr/apply_target.h"

#include <gtest/gtest.h>

#include "tests/plugin/import_htr/skeleton_fixture.h"

namespace orvane {
namespace {

class ApplyTargetTest : public test::SkeletonTest {
 protected:
  void SetUp() override {
    root_ = &Add("Hips");
    spine_ = &Add("Spine", root_);
  }

  ApplyTarget Find() { return FindApplyTarget(interface(), document_); }

  HtrSegment* root_ = nullptr;
  HtrSegment* spine_ = nullptr;
};

TEST_F(ApplyTargetTest, AnEmptySelectionIsRefused) {
  EXPECT_EQ(Find().refusal, "Please select the root of a skeleton before applying animation.");
}

TEST_F(ApplyTargetTest, ABoneIsTheTargetAndItsNameChoosesTheBranch) {
  host::Node& bone = AddBone("Spine");
  scene().Select(bone);
  const ApplyTarget target = Find();
  EXPECT_EQ(target.refusal, "");
  EXPECT_EQ(target.node, &bone);
  EXPECT_EQ(target.branch, spine_);
}

TEST_F(ApplyTargetTest, ABonesNameIsLookedUpInTheWholeDocument) {
  HtrSegment& loose = Add("Loose");
  loose.SetIsRoot(false);  // under no root
  scene().Select(AddBone("Loose"));
  EXPECT_EQ(Find().branch, &loose);
}

TEST_F(ApplyTargetTest, ABoneOfAnotherNameIsRefused) {
  scene().Select(AddBone("spine"));
  EXPECT_EQ(Find().refusal,
            "Please select a branch to apply to that exists in the source HTR file.");
}

TEST_F(ApplyTargetTest, OfAnotherNodeTheFirstBoneChildIsTheTargetWhateverItsName) {
  host::Node& dummy = AddDummy("Group");
  AddDummy("Inner", &dummy);
  host::Node& bone = AddBone("Whatever", &dummy);
  AddBone("Hips", &dummy);
  scene().Select(dummy);
  const ApplyTarget target = Find();
  EXPECT_EQ(target.refusal, "");
  EXPECT_EQ(target.node, &bone);
  EXPECT_EQ(target.branch, root_);
}

TEST_F(ApplyTargetTest, ANodeWithoutBoneChildrenIsTheTargetItself) {
  host::Node& dummy = AddDummy("Group");
  scene().Select(dummy);
  EXPECT_EQ(Find().node, &dummy);
  host::Node& inner = AddDummy("Inner", &dummy);
  AddBone("Deeper", &inner);
  EXPECT_EQ(Find().node, &dummy);
  EXPECT_EQ(Find().branch, root_);
}

TEST_F(ApplyTargetTest, OnlyTheFirstSelectedNodeCounts) {
  host::Node& spine = AddBone("Spine");
  scene().Select(spine);
  scene().Select(AddBone("Unknown"));
  EXPECT_EQ(Find().refusal, "");
  EXPECT_EQ(Find().node, &spine);
}

TEST_F(ApplyTargetTest, WithoutARootTheBranchIsNone) {
  root_->SetIsRoot(false);
  host::Node& dummy = AddDummy("Group");
  scene().Select(dummy);
  EXPECT_EQ(Find().refusal, "");
  EXPECT_EQ(Find().node, &dummy);
  EXPECT_EQ(Find().branch, nullptr);
}

class CharacterNodeTest : public ApplyTargetTest, public testing::WithParamInterface<unsigned> {};

TEST_P(CharacterNodeTest, AnySelectedNodeOfTheCharacterComponentIsRefused) {
  scene().Select(AddBone("Hips"));
  scene().Select(AddDummy("Group"));
  host::Node& character = AddBone("Bip");
  character.Transform()->SetClassId({GetParam(), 0});
  scene().Select(character);
  EXPECT_EQ(Find().refusal, "You can't import .htr directly onto a biped node.");
}

TEST_P(CharacterNodeTest, TheSecondPartOfTheClassCounts) {
  host::Node& bone = AddBone("Hips");
  bone.Transform()->SetClassId({GetParam(), 1});
  scene().Select(bone);
  EXPECT_EQ(Find().refusal, "");
}

INSTANTIATE_TEST_SUITE_P(Classes, CharacterNodeTest,
                         testing::Values(37204U, 37206U, 37205U, 12305U));

TEST_F(ApplyTargetTest, TheCharacterIsRefusedBeforeAnUnknownName) {
  host::Node& character = AddBone("Unknown");
  character.Transform()->SetClassId({37204, 0});
  scene().Select(character);
  EXPECT_EQ(Find().refusal, "You can't import .htr directly onto a biped node.");
}

}  // namespace
}  // namespace orvane
