#include "plugin/export_htr/skeleton_sampler.h"

#include <algorithm>

#include "tests/plugin/export_htr/sampling_fixture.h"

namespace orvane {
namespace {

constexpr char kRefused[] =
    "ExportHTR Error: There are multiple identical names or spaces in a bone name.\n";

class SkeletonSamplerTest : public test::SamplingTest {
 protected:
  bool Sample(host::Node& root) {
    interface().ProgressStart("", true, nullptr, nullptr);
    const bool done = SkeletonSampler(interface(), options_, sink_, document_).Sample(root);
    interface().ProgressEnd();
    return done;
  }

  // The segments in their order, each with its parent: "Hips Leg<Hips".
  std::string Segments() {
    std::string text;
    for (const HtrSegment& segment : document_.segments()) {
      if (!text.empty()) text += ' ';
      text += segment.GetName();
      if (segment.GetParent() != nullptr) text += "<" + segment.GetParent()->GetName();
    }
    return text;
  }
};

TEST_F(SkeletonSamplerTest, BonesBecomeSegmentsDepthFirst) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  AddBone("Foot", &leg);
  AddBone("Spine", &hips);
  EXPECT_TRUE(Sample(hips));
  EXPECT_EQ(Segments(), "Hips Leg<Hips Foot<Leg Spine<Hips");
  const HtrSegment& root = *document_.FindSegment("Hips");
  ASSERT_EQ(root.GetNumChildren(), 2);
  EXPECT_EQ(root.GetChild(0)->GetName(), "Leg");
  EXPECT_EQ(root.GetChild(1)->GetName(), "Spine");
  EXPECT_TRUE(root.GetIsRoot());
  EXPECT_FALSE(root.GetChild(0)->GetIsRoot());
  EXPECT_EQ(document_.FindSegment("Foot")->GetNumFrames(), 3U);
}

TEST_F(SkeletonSamplerTest, ABoneFurtherDownCanBeTheRoot) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  AddBone("Foot", &leg);
  EXPECT_TRUE(Sample(leg));
  EXPECT_EQ(Segments(), "Leg Foot<Leg");
  EXPECT_TRUE(document_.FindSegment("Leg")->GetIsRoot());
}

TEST_F(SkeletonSamplerTest, EffectorsAreLeftOutWithAllBelowThem) {
  host::Node& hips = AddBone("Hips");
  host::Node& effector = AddBone("Hand_Effector", &hips);
  AddBone("Finger", &effector);
  AddBone("MyEffector2", &hips);
  AddBone("Hand_effector", &hips);
  EXPECT_TRUE(Sample(hips));
  EXPECT_EQ(Segments(), "Hips Hand_effector<Hips");
  EXPECT_EQ(desk_.Messages(), "");
}

TEST_F(SkeletonSamplerTest, ARootThatIsAnEffectorGivesAnEmptyDocument) {
  EXPECT_TRUE(Sample(AddBone("Effector")));
  EXPECT_EQ(Segments(), "");
}

TEST_F(SkeletonSamplerTest, WhatIsNoBoneEndsTheWalkAlongItsBranch) {
  host::Node& hips = AddBone("Hips");
  host::Node& helper = AddDummy("Helper", &hips);
  AddBone("Hidden", &helper);
  AddBone("Leg", &hips);
  EXPECT_TRUE(Sample(hips));
  EXPECT_EQ(Segments(), "Hips Leg<Hips");
}

TEST_F(SkeletonSamplerTest, ASecondBoneOfANameIsReportedAndDroppedWithItsChildren) {
  host::Node& hips = AddBone("Hips");
  AddBone("Arm", &hips);
  host::Node& second = AddBone("Arm", &hips);
  AddBone("Hand", &second);
  AddBone("Leg", &hips);
  EXPECT_TRUE(Sample(hips));
  EXPECT_EQ(Segments(), "Hips Arm<Hips Leg<Hips");
  EXPECT_EQ(desk_.Messages(), kRefused);
}

TEST_F(SkeletonSamplerTest, ANameWithABlankIsReportedAndDroppedWithItsChildren) {
  host::Node& hips = AddBone("Hips");
  host::Node& arm = AddBone("Left Arm", &hips);
  AddBone("Hand", &arm);
  EXPECT_TRUE(Sample(hips));
  EXPECT_EQ(Segments(), "Hips");
  EXPECT_EQ(desk_.Messages(), kRefused);
}

TEST_F(SkeletonSamplerTest, ARootThatIsRefusedEndsIt) {
  host::Node& hips = AddBone("My Hips");
  AddBone("Leg", &hips);
  EXPECT_FALSE(Sample(hips));
  EXPECT_EQ(Segments(), "");
  EXPECT_EQ(desk_.Messages(), kRefused);
}

// A bone is sampled before its name is looked at.
TEST_F(SkeletonSamplerTest, ARefusedBoneIsWarnedOfFirst) {
  host::Node& hips = AddBone("My Hips");
  hips.SetObjectOffset(Matrix3({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {5, 0, 0}));
  EXPECT_FALSE(Sample(hips));
  EXPECT_EQ(desk_.Messages(),
            "ExportHTR Error: Bone: My Hips contains an object offset transformation, the "
            "resulting skeleton may not be correct.\n" +
                std::string(kRefused));
}

TEST_F(SkeletonSamplerTest, TheBarStandsAt90FromTheFirstBoneOn) {
  host::Node& hips = AddBone("Hips");
  AddBone("Hips", &hips);  // refused: not counted
  AddBone("Leg", &hips);
  AddBone("Foot", &hips);
  EXPECT_TRUE(Sample(hips));
  std::vector<int> percentages;
  for (const host::ProgressEvent& event : application_.progress().Events()) {
    if (event.kind != host::ProgressEvent::Kind::kUpdate) continue;
    percentages.push_back(event.percent);
  }
  EXPECT_EQ(percentages, (std::vector<int>{90, 90, 90}));
}

TEST_F(SkeletonSamplerTest, AnyDepthIsWalked) {
  constexpr int kDepth = 20'000;
  host::Node* bone = &AddBone("Bone0");
  host::Node& root = *bone;
  for (int i = 1; i < kDepth; ++i) bone = &AddBone("Bone" + std::to_string(i), bone);
  EXPECT_TRUE(Sample(root));
  EXPECT_EQ(document_.GetNumSegments(), kDepth);
}

}  // namespace
}  // namespace orvane
