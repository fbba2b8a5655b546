#include "formats/htr/segment.h"

#include <gtest/gtest.h>

#include <deque>
#include <string>
#include <utility>
#include <vector>

#include "formats/math/rotation_matrix3.h"
#include "tests/support/tolerances.h"

namespace orvane {
namespace {

constexpr double kPi = 3.141592653589793;

void ExpectVector(const Vector3& vector, double x, double y, double z) {
  EXPECT_EQ(vector.x(), x);
  EXPECT_EQ(vector.y(), y);
  EXPECT_EQ(vector.z(), z);
}

void ExpectAngles(const EulerRotation& rotation, double x, double y, double z) {
  EXPECT_NEAR(rotation[0], x, test::kAngle_rad);
  EXPECT_NEAR(rotation[1], y, test::kAngle_rad);
  EXPECT_NEAR(rotation[2], z, test::kAngle_rad);
}

TEST(HtrSegment, StartsEmpty) {
  const HtrSegment segment;
  EXPECT_FALSE(segment.GetIsRoot());
  EXPECT_EQ(segment.GetName(), "");
  EXPECT_EQ(segment.GetParent(), nullptr);
  EXPECT_EQ(segment.GetNumChildren(), 0);
  ExpectVector(segment.GetBaseTranslation(), 0, 0, 0);
  ExpectAngles(segment.GetBaseRotation(), 0, 0, 0);
  EXPECT_EQ(segment.GetBaseRotation().order().code(), 0u);
  EXPECT_EQ(segment.GetBoneLength(), 0.0);
  EXPECT_EQ(segment.GetScaleReferenceLength(), 1.0);
  EXPECT_EQ(segment.GetNumFrames(), 0u);
}

TEST(HtrSegment, KeepsWhatIsSet) {
  HtrSegment segment;
  segment.SetIsRoot(true);
  segment.SetName("Hips");
  segment.SetBaseTranslation(1, 2, 3);
  segment.SetBaseRotation(0.1, 0.2, 0.3);
  segment.SetBoneLength(120);
  segment.SetScaleReferenceLength(2);
  EXPECT_TRUE(segment.GetIsRoot());
  EXPECT_EQ(segment.GetName(), "Hips");
  ExpectVector(segment.GetBaseTranslation(), 1, 2, 3);
  ExpectAngles(segment.GetBaseRotation(), 0.1, 0.2, 0.3);
  EXPECT_EQ(segment.GetBoneLength(), 120.0);
  EXPECT_EQ(segment.GetScaleReferenceLength(), 2.0);
}

TEST(HtrSegment, IsListedByItsParent) {
  HtrSegment parent("Hips"), first("Spine"), second("Leg");
  first.SetParent(&parent);
  second.SetParent(&parent);
  EXPECT_EQ(first.GetParent(), &parent);
  ASSERT_EQ(parent.GetNumChildren(), 2);
  EXPECT_EQ(parent.GetChild(0), &first);
  EXPECT_EQ(parent.GetChild(1), &second);
}

TEST(HtrSegment, MayLoseItsParentAgain) {
  HtrSegment parent("Hips"), child("Spine");
  child.SetParent(&parent);
  child.SetParent(nullptr);
  EXPECT_EQ(child.GetParent(), nullptr);
  EXPECT_EQ(parent.GetNumChildren(), 1);
}

TEST(HtrSegment, HasNoChildOutsideItsRange) {
  HtrSegment parent("Hips"), child("Spine");
  child.SetParent(&parent);
  EXPECT_EQ(parent.GetChild(-1), nullptr);
  EXPECT_EQ(parent.GetChild(1), nullptr);
  EXPECT_EQ(child.GetChild(0), nullptr);
}

TEST(FindDescendant, StartsWithTheSegmentItself) {
  HtrSegment parent("Hips"), child("Hips");
  child.SetParent(&parent);
  EXPECT_EQ(parent.FindDescendant("Hips"), &parent);
}

TEST(FindDescendant, GoesDepthFirstInTheChildrensOrder) {
  HtrSegment root("root"), first("a"), below_first("x"), second("x");
  first.SetParent(&root);
  second.SetParent(&root);
  below_first.SetParent(&first);
  EXPECT_EQ(root.FindDescendant("x"), &below_first);
}

TEST(FindDescendant, FindsNothingOutsideTheBranchOrOfAnotherCase) {
  HtrSegment root("root"), left("left"), right("right");
  left.SetParent(&root);
  right.SetParent(&root);
  EXPECT_EQ(left.FindDescendant("right"), nullptr);
  EXPECT_EQ(left.FindDescendant("root"), nullptr);
  EXPECT_EQ(root.FindDescendant("Left"), nullptr);
}

TEST(FindDescendant, SurvivesALongChainOfDoubledChildren) {
  std::deque<HtrSegment> chain;
  for (int index = 0; index < 100000; ++index) {
    HtrSegment* parent = chain.empty() ? nullptr : &chain.back();
    HtrSegment& segment = chain.emplace_back("s" + std::to_string(index));
    segment.SetParent(parent);
    segment.SetParent(parent);
  }
  EXPECT_EQ(chain.front().FindDescendant("s99999"), &chain.back());
  EXPECT_EQ(chain.front().FindDescendant("missing"), nullptr);
}

TEST(FindDescendant, SurvivesACircle) {
  HtrSegment first("a"), second("b");
  first.SetParent(&second);
  second.SetParent(&first);
  HtrSegment alone("c");
  alone.SetParent(&alone);
  EXPECT_EQ(first.FindDescendant("b"), &second);
  EXPECT_EQ(first.FindDescendant("missing"), nullptr);
  EXPECT_EQ(alone.FindDescendant("missing"), nullptr);
}

TEST(HtrFrames, AreStoredAsAdded) {
  HtrSegment segment;
  segment.AddFrame(Vector3(1, 2, 3), Vector3(0.1, 0.2, 0.3), 1.5);
  segment.AddFrame(Vector3(4, 5, 6), EulerRotation(0.4, 0.5, 0.6), 2.5);
  ASSERT_EQ(segment.GetNumFrames(), 2u);
  ExpectVector(segment.GetFrameTranslation(0), 1, 2, 3);
  ExpectAngles(segment.GetFrameRotation(0), 0.1, 0.2, 0.3);
  EXPECT_EQ(segment.GetFrameRotation(0).order().code(), 0u);
  EXPECT_EQ(segment.GetFrameScale(0), 1.5);
  ExpectVector(segment.GetFrameTranslation(1), 4, 5, 6);
  ExpectAngles(segment.GetFrameRotation(1), 0.4, 0.5, 0.6);
  EXPECT_EQ(segment.GetFrameScale(1), 2.5);
}

TEST(HtrFrames, KeepTheOrderOfARotationThatIsBuiltAlready) {
  HtrSegment segment;
  segment.AddFrame(Vector3(), EulerRotation(0.1, 0.2, 0.3, OrvaneEulerOrder(21)), 1);
  EXPECT_EQ(segment.GetFrameRotation(0).order().code(), 21u);
}

TEST(HtrFrames, KeepAnOrderEach) {
  const std::vector<std::vector<unsigned>> cases = {
      {0, 0, 0}, {21, 21, 21}, {0, 21, 0, 4}, {21, 0, 0}, {0, 0, 21}};
  for (const std::vector<unsigned>& codes : cases) {
    HtrSegment segment("Hips");
    for (const unsigned code : codes) {
      segment.AddFrame(Vector3(), EulerRotation(1, 2, 3, OrvaneEulerOrder(code)), 1.0);
    }
    for (std::size_t frame = 0; frame < codes.size(); ++frame) {
      EXPECT_EQ(segment.GetFrameRotation(frame).order().code(), codes[frame]) << frame;
    }
  }
}

TEST(HtrFrames, AreNeutralPastTheEnd) {
  HtrSegment segment;
  segment.SetBaseTranslation(1, 2, 3);
  segment.SetBaseRotation(0.1, 0.2, 0.3);
  segment.AddFrame(Vector3(1, 2, 3), Vector3(0.1, 0.2, 0.3), 1.5);
  for (std::size_t index : {std::size_t{1}, std::size_t{1000}, ~std::size_t{0}}) {
    ExpectVector(segment.GetFrameTranslation(index), 0, 0, 0);
    ExpectAngles(segment.GetFrameRotation(index), 0, 0, 0);
    EXPECT_EQ(segment.GetFrameScale(index), 1.0);
    ExpectVector(segment.GetFramePosition(index), 0, 0, 0);
    ExpectAngles(segment.GetFrameOrientation(index), 0, 0, 0);
    EXPECT_EQ(segment.GetFrameOrientation(index).order().code(), 0u);
  }
}

TEST(HtrFrames, LetTheirTranslationBeChanged) {
  HtrSegment segment;
  segment.AddFrame(Vector3(1, 2, 3), Vector3(), 1);
  EXPECT_TRUE(segment.SetFrameTranslation(0, 7, 8, 9));
  ExpectVector(segment.GetFrameTranslation(0), 7, 8, 9);
  EXPECT_FALSE(segment.SetFrameTranslation(1, 1, 1, 1));
  EXPECT_EQ(segment.GetNumFrames(), 1u);
}

TEST(HtrFrames, AreReservedWithoutBeingThere) {
  HtrSegment segment;
  segment.ReserveFrames(1000);
  EXPECT_EQ(segment.GetNumFrames(), 0u);
}

TEST(HtrFramePosition, IsTheBaseTranslationPlusTheFrames) {
  HtrSegment segment;
  segment.SetBaseTranslation(10, 20, 30);
  segment.AddFrame(Vector3(1, 2, 3), Vector3(), 1);
  ExpectVector(segment.GetFramePosition(0), 11, 22, 33);
}

TEST(HtrFrameOrientation, AppliesTheFramesRotationBeforeTheBases) {
  HtrSegment segment;
  segment.SetBaseRotation(0, 0, kPi / 2);
  segment.AddFrame(Vector3(), Vector3(kPi / 2, 0, 0), 1);
  // +Y goes to +Z by the frame, and stays there by the base.
  const RotationMatrix3 matrix(segment.GetFrameOrientation(0));
  EXPECT_NEAR(matrix.Element(2, 1), 1.0, test::kRotationElement);
  // +X stays by the frame, and goes to +Y by the base.
  EXPECT_NEAR(matrix.Element(1, 0), 1.0, test::kRotationElement);
}

TEST(HtrFrameOrientation, ReadsTheFramesOwnOrderAndAnswersInTheDefaultOne) {
  HtrSegment segment;
  const EulerRotation rotation(0.1, 0.2, 0.3, OrvaneEulerOrder(20));
  segment.AddFrame(Vector3(), rotation, 1);
  const EulerRotation orientation = segment.GetFrameOrientation(0);
  EXPECT_EQ(orientation.order().code(), 0u);
  const RotationMatrix3 actual(orientation);
  const RotationMatrix3 expected(rotation);
  for (unsigned int column = 0; column < 3; ++column) {
    for (unsigned int row = 0; row < 3; ++row) {
      EXPECT_NEAR(actual.Element(row, column), expected.Element(row, column),
                  test::kRotationElement);
    }
  }
}

TEST(HtrFrameOrientation, IsTheSameWithTheBasesMatrixAtHand) {
  HtrSegment segment;
  segment.SetBaseRotation(0.3, -1.2, 2.5);
  const RotationMatrix3 base(segment.GetBaseRotation());
  for (int frame = 0; frame < 20; ++frame) {
    segment.AddFrame(Vector3(), Vector3(0.1 * frame, -0.2 * frame, 3.0 - frame), 1);
  }
  for (std::size_t frame = 0; frame <= 20; ++frame) {
    const EulerRotation expected = segment.GetFrameOrientation(frame);
    const EulerRotation actual = segment.GetFrameOrientation(frame, base);
    for (unsigned int axis = 0; axis < 3; ++axis) EXPECT_EQ(actual[axis], expected[axis]) << frame;
  }
}

TEST(HtrFrameOrientation, IsTheFramesRotationOnAZeroBase) {
  HtrSegment segment;
  segment.AddFrame(Vector3(), Vector3(0.1, -0.2, 3.0), 1);
  ExpectAngles(segment.GetFrameOrientation(0), 0.1, -0.2, 3.0);
}

TEST(HtrSegment, ScalesLengthsAndNothingElse) {
  HtrSegment segment;
  segment.SetBaseTranslation(1, 2, 3);
  segment.SetBaseRotation(0.1, 0.2, 0.3);
  segment.SetBoneLength(4);
  segment.SetScaleReferenceLength(5);
  for (int frame = 0; frame < 3; ++frame) {
    segment.AddFrame(Vector3(1, 2, 3), Vector3(0.1, 0.2, 0.3), 1.5);
  }
  segment.ScaleLengths(10, 2);
  ExpectVector(segment.GetBaseTranslation(), 10, 20, 30);
  EXPECT_EQ(segment.GetBoneLength(), 40.0);
  ExpectVector(segment.GetFrameTranslation(1), 10, 20, 30);
  ExpectVector(segment.GetFrameTranslation(2), 1, 2, 3);
  ExpectAngles(segment.GetBaseRotation(), 0.1, 0.2, 0.3);
  ExpectAngles(segment.GetFrameRotation(1), 0.1, 0.2, 0.3);
  EXPECT_EQ(segment.GetFrameScale(1), 1.5);
  EXPECT_EQ(segment.GetScaleReferenceLength(), 5.0);
}

TEST(HtrSegment, CopiesItsFrames) {
  HtrSegment original("Hips");
  original.AddFrame(Vector3(1, 2, 3), Vector3(), 1);
  HtrSegment copy = original;
  ASSERT_TRUE(copy.SetFrameTranslation(0, 9, 9, 9));
  copy.SetName("Copy");
  ExpectVector(original.GetFrameTranslation(0), 1, 2, 3);
  EXPECT_EQ(original.GetName(), "Hips");
}

}  // namespace
}  // namespace orvane
