#include "plugin/export_htr/segment_sampler.h"

#include <cmath>
#include <limits>

#include "tests/plugin/export_htr/sampling_fixture.h"

namespace orvane {
namespace {

using test::ExpectAngles;
using test::ExpectVector;

constexpr char kOffsetWarning[] =
    " contains an object offset transformation, the resulting skeleton may not be correct.\n";

class SegmentSamplerTest : public test::SamplingTest {
 protected:
  HtrSegment Sample(host::Node& node, const HtrSegment* parent = nullptr) {
    return SegmentSampler(interface(), options_, sink_, document_, node, parent).Sample();
  }

  static Point3 Along(float x) { return Point3(x, 0, 0); }
};

TEST_F(SegmentSamplerTest, HasTheNameOfTheNodeAndIsARootWithoutAParent) {
  const HtrSegment root = Sample(AddBone("Hips"));
  EXPECT_EQ(root.GetName(), "Hips");
  EXPECT_TRUE(root.GetIsRoot());
  const HtrSegment child = Sample(AddBone("Leg"), &root);
  EXPECT_FALSE(child.GetIsRoot());
  EXPECT_TRUE(document_.GetNormalizeBoneScale());
}

// --- The saved pose ---

TEST_F(SegmentSamplerTest, TheSavedPoseIsTakenAsItStands) {
  host::Node& hips = AddBone("Hips");
  Place(hips, Point3(7, 8, 9));
  test::SetBoneLength(hips, 4.0F);
  KeepBase(hips, {1, 2, 3, 0.25F, 0.5F, 0.75F, 10});
  options_.animate = false;
  const HtrSegment segment = Sample(hips);
  ExpectVector(segment.GetBaseTranslation(), 1, 2, 3, 0);
  EXPECT_EQ(segment.GetBaseRotation()[0], 0.25);
  EXPECT_EQ(segment.GetBaseRotation()[1], 0.5);
  EXPECT_EQ(segment.GetBaseRotation()[2], 0.75);
  EXPECT_EQ(segment.GetBoneLength(), 10.0);
  EXPECT_EQ(segment.GetScaleReferenceLength(), 2.5);
  EXPECT_TRUE(document_.GetNormalizeBoneScale());
}

TEST_F(SegmentSamplerTest, TheSavedPoseDoesNotWarnOfObjectOffsets) {
  host::Node& hips = AddBone("Hips");
  KeepBase(hips, {1, 2, 3, 0, 0, 0, 10});
  hips.SetObjectOffset(Matrix3({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {5, 0, 0}));
  Sample(hips);
  EXPECT_EQ(desk_.Messages(), "");
}

TEST_F(SegmentSamplerTest, WithOneOfTheSevenNumbersMissingTheCurrentPoseIsTaken) {
  const char* const keys[] = {"HTRBaseTransX", "HTRBaseTransY", "HTRBaseTransZ", "HTRBaseRotX",
                              "HTRBaseRotY",   "HTRBaseRotZ",   "HTRBaseLength"};
  for (const char* missing : keys) {
    host::Node& hips = AddBone("Hips");
    Place(hips, Point3(7, 8, 9));
    hips.SetObjectOffset(Matrix3({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {5, 0, 0}));
    for (const char* key : keys) {
      if (key != missing) hips.SetUserPropertyFloat(key, 1.0F);
    }
    ExpectVector(Sample(hips).GetBaseTranslation(), 7, 9, -8);
  }
  std::string warnings;
  for (int i = 0; i < 7; ++i) {
    warnings += std::string("ExportHTR Error: Bone: Hips") + kOffsetWarning;
  }
  EXPECT_EQ(desk_.Messages(), warnings);
}

TEST_F(SegmentSamplerTest, TheCurrentPoseDoesNotLookAtWhatIsSaved) {
  host::Node& hips = AddBone("Hips");
  Place(hips, Point3(7, 8, 9));
  KeepBase(hips, {1, 2, 3, 0, 0, 0, 10});
  options_.savedPose = false;
  ExpectVector(Sample(hips).GetBaseTranslation(), 7, 9, -8);
}

// --- The current pose ---

TEST_F(SegmentSamplerTest, TheCurrentPoseIsThatOfTheCurrentTime) {
  host::Node& hips = AddBone("Hips");
  hips.Transform()->Position().SetKey(0, Point3(1, 2, 3));
  hips.Transform()->Position().SetKey(160, Point3(4, 5, 6));
  scene().Animation().SetTime(160);
  ExpectVector(Sample(hips).GetBaseTranslation(), 4, 6, -5);
}

TEST_F(SegmentSamplerTest, ChildrenGoAlongTheirParentsAxes) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  Place(leg, Point3(1, 2, 3));
  Turn(leg, test::Turn(0, 0, 1, 30));
  const HtrSegment root = Sample(hips);
  const HtrSegment segment = Sample(leg, &root);
  ExpectVector(segment.GetBaseTranslation(), 3, 1, 2);
  ExpectAngles(segment.GetBaseRotation(), 30, 0, 0);
}

TEST_F(SegmentSamplerTest, LengthsGetTheScaleOfTheBoneAndItsParent) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  Enlarge(hips, 2);
  Enlarge(leg, 3);
  Place(leg, Along(5));
  test::SetBoneLength(leg, 10.0F);
  const HtrSegment root = Sample(hips);
  const HtrSegment segment = Sample(leg, &root);
  ExpectVector(segment.GetBaseTranslation(), 0, 10, 0);
  EXPECT_NEAR(segment.GetBoneLength(), 60.0, 1e-5);
  EXPECT_NEAR(segment.GetScaleReferenceLength(), 6.0, 1e-6);
}

// The world transform has the scale of the group in it, and gets it once more.
TEST_F(SegmentSamplerTest, TheBaseOfARootInTheWorldGetsTheScaleOfItsParentTwice) {
  host::Node& group = AddDummy("Group");
  host::Node& hips = AddBone("Hips", &group);
  Enlarge(group, 2);
  Place(hips, Point3(1, 2, 3));
  test::SetBoneLength(hips, 10.0F);
  const HtrSegment in_world = Sample(hips);
  ExpectVector(in_world.GetBaseTranslation(), 4, 12, -8);
  EXPECT_EQ(in_world.GetBoneLength(), 40.0);
  EXPECT_EQ(in_world.GetScaleReferenceLength(), 4.0);
  // Base and frame together are where the root is.
  ExpectVector(in_world.GetFramePosition(0), 2, 6, -4);

  options_.parentTransforms = false;
  const HtrSegment relative = Sample(hips);
  ExpectVector(relative.GetBaseTranslation(), 2, 6, -4);
  EXPECT_EQ(relative.GetBoneLength(), 20.0);
  ExpectVector(relative.GetFramePosition(0), 1, 3, -2);
}

TEST_F(SegmentSamplerTest, AnObjectOffsetIsWarnedOfOnceForABoneOrForItsParent) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  hips.SetObjectOffset(Matrix3({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {5, 0, 0}));
  leg.SetObjectOffset(Matrix3({1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {5, 0, 0}));
  const HtrSegment root = Sample(hips);
  Sample(leg, &root);
  EXPECT_EQ(desk_.Messages(), std::string("ExportHTR Error: Bone: Hips") + kOffsetWarning +
                                  "ExportHTR Error: Bone: Leg" + kOffsetWarning);
}

struct ReferenceCase {
  const char* name;
  bool saved;
  float length;  // of the bone object
  double expected;
};

class ReferenceLengthTest : public SegmentSamplerTest,
                            public testing::WithParamInterface<ReferenceCase> {};

TEST_P(ReferenceLengthTest, IsOneWhereNothingCouldBeDividedByIt) {
  host::Node& hips = AddBone("Hips");
  test::SetBoneLength(hips, GetParam().length);
  options_.savedPose = GetParam().saved;
  KeepBase(hips, {1, 2, 3, 0, 0, 0, 0});
  Enlarge(hips, 0);
  const HtrSegment segment = Sample(hips);
  EXPECT_EQ(segment.GetScaleReferenceLength(), GetParam().expected);
  EXPECT_EQ(segment.GetBoneLength(), 0.0);
}

INSTANTIATE_TEST_SUITE_P(Bones, ReferenceLengthTest,
                         testing::Values(ReferenceCase{"SavedZeroOverZero", true, 0, 1.0},
                                         ReferenceCase{"SavedZeroOverSomething", true, 5, 1.0},
                                         ReferenceCase{"CurrentWithoutScale", false, 5, 1.0}),
                         [](const auto& test_case) { return test_case.param.name; });

TEST_F(SegmentSamplerTest, ABoneObjectOfLength0DividesNothing) {
  host::Node& hips = AddBone("Hips");
  test::SetBoneLength(hips, 0.0F);
  KeepBase(hips, {1, 2, 3, 0, 0, 0, 10});
  const HtrSegment segment = Sample(hips);
  EXPECT_EQ(segment.GetScaleReferenceLength(), 1.0);
  EXPECT_EQ(segment.GetBoneLength(), 10.0);
}

// --- Frames ---

TEST_F(SegmentSamplerTest, WithoutAnimationThereAreNoFrames) {
  options_.animate = false;
  document_.SetStartFrame(77);
  EXPECT_EQ(Sample(AddBone("Hips")).GetNumFrames(), 0U);
  EXPECT_EQ(document_.GetStartFrame(), 77);
}

struct SpanCase {
  const char* name;
  Interval animation;
  bool range;
  int from;
  int to;
  int offset;
  int start_frame;  // of the document
  std::vector<double> positions;
};

class SampledFramesTest : public SegmentSamplerTest,
                          public testing::WithParamInterface<SpanCase> {};

TEST_P(SampledFramesTest, FollowTheRange) {
  const SpanCase& its = GetParam();
  host::Node& hips = AddBone("Hips");
  hips.Transform()->Position().SetKey(-1600, Point3(-10, 0, 0));
  hips.Transform()->Position().SetKey(1600, Point3(10, 0, 0));  // 1 a frame
  scene().Animation().SetRange(its.animation);
  options_.range = its.range;
  options_.startFrame = its.from;
  options_.endFrame = its.to;
  options_.frameOffset = its.offset;
  const HtrSegment segment = Sample(hips);
  EXPECT_EQ(document_.GetStartFrame(), its.start_frame);
  ASSERT_EQ(segment.GetNumFrames(), its.positions.size());
  for (std::size_t i = 0; i < its.positions.size(); ++i) {
    EXPECT_NEAR(segment.GetFramePosition(i).x(), its.positions[i], 1e-6) << i;
  }
}

// At 160 ticks a frame.
INSTANTIATE_TEST_SUITE_P(
    Ranges, SampledFramesTest,
    testing::Values(SpanCase{"Slider", {160, 480}, false, 2, 2, 0, 1, {1, 2, 3}},
                    SpanCase{"Range", {0, 1600}, true, 2, 3, 0, 2, {2, 3}},
                    SpanCase{"OneFrame", {320, 320}, false, 2, 2, 0, 2, {2}},
                    SpanCase{"OffAFrame", {250, 499}, false, 1, 3, 0, 1, {1, 2, 3}},
                    SpanCase{"TowardsZero", {-250, 170}, false, -1, 1, 0, -1, {-1, 0, 1}},
                    SpanCase{"Offset", {160, 320}, false, 1, 2, 10, 11, {1, 2}},
                    SpanCase{"Backwards", {480, 160}, false, 3, 1, 0, 3, {}}),
    [](const auto& test_case) { return test_case.param.name; });

TEST_F(SegmentSamplerTest, FramesAreRelativeToTheBase) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  KeepBase(leg, {3, 1, 2, static_cast<float>(test::Radians(30)), 0, 0, 10});
  Place(leg, Point3(11, 22, 33));  // the file's (33, 11, 22)
  Turn(leg, test::Turn(0, 0, 1, 75));
  const HtrSegment root = Sample(hips);
  const HtrSegment segment = Sample(leg, &root);
  ExpectVector(segment.GetFrameTranslation(0), 30, 10, 20);
  ExpectAngles(segment.GetFrameRotation(0), 45, 0, 0);
}

// The base stands to the left: B' F, not F B'.
TEST_F(SegmentSamplerTest, FrameRotationsStandToTheRightOfTheBase) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  KeepBase(leg, {0, 0, 0, static_cast<float>(test::Radians(90)), 0, 0, 10});
  Turn(leg, test::Turn(1, 0, 0, 90));  // 90 degrees about the file's Y
  const HtrSegment root = Sample(hips);
  const HtrSegment segment = Sample(leg, &root);
  // Rx(-90) Ry(90) is Rz(-90) Rx(-90): both take X to -Y, and Y to -Z.
  ExpectAngles(segment.GetFrameRotation(0), -90, 0, -90);
  ExpectAngles(segment.GetFrameOrientation(0), 0, 90, 0);
}

TEST_F(SegmentSamplerTest, TheScaleOfAFrameIsThatOfTheBoneTimesItsParents) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  hips.Transform()->Scale().SetKey(0, Point3(1, 1, 1));
  hips.Transform()->Scale().SetKey(320, Point3(3, 3, 3));
  Enlarge(leg, 5);
  Place(leg, Along(7));
  options_.savedPose = false;
  const HtrSegment root = Sample(hips);
  const HtrSegment segment = Sample(leg, &root);
  for (std::size_t frame = 0; frame < 3; ++frame) {
    const double parent = 1.0 + static_cast<double>(frame);
    EXPECT_NEAR(root.GetFrameScale(frame), parent, 1e-6);
    EXPECT_NEAR(segment.GetFrameScale(frame), 5 * parent, 1e-5);
    ExpectVector(segment.GetFramePosition(frame), 0, 7 * parent, 0, 1e-5);
  }
}

TEST_F(SegmentSamplerTest, WithAnOffsetTheScaleOfAnotherFrameOfTheParentCounts) {
  host::Node& hips = AddBone("Hips");
  host::Node& leg = AddBone("Leg", &hips);
  hips.Transform()->Scale().SetKey(0, Point3(2, 2, 2));
  hips.Transform()->Scale().SetKey(320, Point3(4, 4, 4));
  const auto scales = [&](int offset) {
    options_.frameOffset = offset;
    const HtrSegment root = Sample(hips);
    const HtrSegment segment = Sample(leg, &root);
    return std::vector<double>{std::round(segment.GetFrameScale(0)),
                               std::round(segment.GetFrameScale(1)),
                               std::round(segment.GetFrameScale(2))};
  };
  // The parent's are 2, 3, 4.
  EXPECT_EQ(scales(0), (std::vector<double>{2, 3, 4}));
  EXPECT_EQ(scales(1), (std::vector<double>{1, 2, 3}));   // before its first frame: 1
  EXPECT_EQ(scales(-1), (std::vector<double>{3, 4, 1}));  // past its last: 1
}

TEST_F(SegmentSamplerTest, AFrameOfAnEnlargedChildIsNotMovedByItsOwnScale) {
  host::Node& hips = AddBone("Hips");
  Enlarge(hips, 4);
  Place(hips, Along(7));
  ExpectVector(Sample(hips).GetFramePosition(0), 7, 0, 0);
}

}  // namespace
}  // namespace orvane
