#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "formats/htr/document_checker.h"
#include "formats/htr/reader.h"
#include "tests/support/htr_skeleton_pose.h"
#include "tests/support/tolerances.h"

namespace orvane {
namespace {

constexpr double kRadians = 0.017453292519943295;

std::string Fixture(const std::string& file) {
  return std::string(ORVANE_SOURCE_DIR) + "/tests/data/htr/" + file;
}

struct Expected {
  std::string file;
  std::string message;
  int segments = 2;
  std::size_t frames = 2;  // of Hips
};

const std::vector<Expected> kFixtures = {
    {"two_bones.htr", ""},
    {"line_feeds_only.htr", ""},
    {"no_end.htr", ""},
    {"comments_and_blank_lines.htr", ""},
    {"from_frame_zero.htr", ""},
    {"radians.htr", ""},
    {"upper_case_radian.htr", ""},
    {"feet_and_gravity_z.htr", ""},
    {"gravity_x.htr", "The file does not have a compatible \"GlobalAxisofGravity\" header state", 0,
     0},
    {"bone_axis_z.htr", "The file does not have a compatible \"BoneLengthAxis\" header state", 0,
     0},
    {"other_euler_order.htr",
     "The file does not have a compatible \"EulerRotationOrder\" header state", 0, 0},
    {"scale_factor.htr", ""},
    {"duplicate_name.htr", "The file has duplicate segment names: Hips", 2, 0},
    {"unknown_base_name.htr", "Segment name not found: 1.5", 2, 0},
    {"base_positions_short.htr", "Incorrect number of segments defined in file", 3, 2},
    {"no_base_position.htr", ""},
    {"repeated_base_position.htr", ""},
    {"parents_in_a_circle.htr", ""},
    {"unknown_parent.htr", ""},
    {"unknown_motion_section.htr", ""},
    {"odd_numbers.htr", "", 2, 1},
    {"frames_missing.htr", ""},
};

TEST(HtrFixtures, ReadAsTold) {
  for (const Expected& expected : kFixtures) {
    SCOPED_TRACE(expected.file);
    HtrDocument document;
    EXPECT_EQ(ReadHtrFile(document, Fixture(expected.file), true), expected.message);
    EXPECT_EQ(FindFault(document), "");
    EXPECT_EQ(document.GetNumSegments(), expected.segments);
    const HtrSegment* hips = document.FindSegment("Hips");
    EXPECT_EQ(hips == nullptr ? 0 : hips->GetNumFrames(), expected.frames);
  }
}

TEST(HtrFixtures, AreAllTestedAndExplained) {
  std::ifstream readme(Fixture("README.md"));
  const std::string table((std::istreambuf_iterator<char>(readme)), {});
  std::set<std::string> tested;
  for (const Expected& expected : kFixtures) tested.insert(expected.file);
  std::set<std::string> found;
  for (const auto& entry : std::filesystem::directory_iterator(Fixture(""))) {
    if (entry.path().extension() == ".htr") found.insert(entry.path().filename().string());
  }
  EXPECT_EQ(found, tested);
  for (const std::string& file : found) {
    EXPECT_NE(table.find("| `" + file + "` |"), std::string::npos) << file;
  }
}

class HtrFixture : public ::testing::Test {
 protected:
  HtrDocument& Read(const std::string& file) {
    EXPECT_EQ(ReadHtrFile(document_, Fixture(file), true), "");
    hips_ = document_.FindSegment("Hips");
    spine_ = document_.FindSegment("Spine");
    return document_;
  }

  HtrDocument document_;
  HtrSegment* hips_ = nullptr;
  HtrSegment* spine_ = nullptr;
};

TEST_F(HtrFixture, OfTwoBonesStandsAndMovesAsDrawn) {
  Read("two_bones.htr");
  const Vector3 at_rest = test::TipOf(*spine_, 0);
  EXPECT_NEAR(at_rest.x(), 0, test::kPosition_mm);
  EXPECT_NEAR(at_rest.y(), 950 + 120 + 400, test::kPosition_mm);
  EXPECT_NEAR(at_rest.z(), 0, test::kPosition_mm);
  // Hips up and forward and a quarter turn about Y; the spine leans 30 degrees to its own +X, which
  // that turn takes to -Z.
  const Vector3 moved = test::TipOf(*spine_, 1);
  EXPECT_NEAR(moved.x(), 0, test::kPosition_mm);
  EXPECT_NEAR(moved.y(), 960 + 120 + 400 * std::cos(30 * kRadians), test::kPosition_mm);
  EXPECT_NEAR(moved.z(), 25 - 400 * std::sin(30 * kRadians), test::kPosition_mm);
}

TEST_F(HtrFixture, OfTheSameMotionReadAlike) {
  for (const char* file : {"line_feeds_only.htr", "no_end.htr", "comments_and_blank_lines.htr",
                           "upper_case_radian.htr", "unknown_motion_section.htr"}) {
    SCOPED_TRACE(file);
    Read("two_bones.htr");
    const Vector3 expected = test::TipOf(*spine_, 1);
    Read(file);
    EXPECT_EQ(document_.GetStartFrame(), 1);
    const Vector3 actual = test::TipOf(*spine_, 1);
    for (unsigned int axis = 0; axis < 3; ++axis) EXPECT_EQ(actual[axis], expected[axis]);
  }
}

TEST_F(HtrFixture, FromFrameZeroStartsThere) {
  EXPECT_EQ(Read("from_frame_zero.htr").GetStartFrame(), 0);
}

TEST_F(HtrFixture, InRadiansIsNotConverted) {
  EXPECT_EQ(Read("radians.htr").GetRotationUnits(), 1u);
  EXPECT_EQ(spine_->GetFrameRotation(1)[2], -0.523599);
}

TEST_F(HtrFixture, KeepsItsUnitAndGravity) {
  Read("feet_and_gravity_z.htr");
  EXPECT_EQ(document_.GetCalibrationUnits(), 4u);
  EXPECT_EQ(document_.GetGlobalAxisofGravity(), 2u);
  EXPECT_EQ(hips_->GetBoneLength(), 120.0);
}

TEST_F(HtrFixture, CarriesItsScaleFactor) {
  EXPECT_EQ(Read("scale_factor.htr").GetScaleFactor(), 2.5);
  EXPECT_EQ(hips_->GetBoneLength(), 120.0);
}

TEST_F(HtrFixture, WithoutBasePositionsIsUnlinked) {
  EXPECT_EQ(Read("no_base_position.htr").FindRootSegment(), nullptr);
  EXPECT_EQ(spine_->GetParent(), nullptr);
  EXPECT_EQ(spine_->GetFrameRotation(1)[2], -30.0);
}

TEST_F(HtrFixture, WithTwoBasePositionSectionsListsChildrenTwice) {
  Read("repeated_base_position.htr");
  EXPECT_EQ(hips_->GetNumChildren(), 2);
  EXPECT_EQ(hips_->GetChild(0), spine_);
  EXPECT_EQ(hips_->GetChild(1), spine_);
}

TEST_F(HtrFixture, WithParentsInACircleHasNoRoot) {
  EXPECT_EQ(Read("parents_in_a_circle.htr").FindRootSegment(), nullptr);
  EXPECT_EQ(hips_->GetParent(), spine_);
  EXPECT_EQ(spine_->GetParent(), hips_);
}

TEST_F(HtrFixture, WithAnUnknownParentHasASegmentWithoutOne) {
  EXPECT_EQ(Read("unknown_parent.htr").FindRootSegment(), hips_);
  EXPECT_EQ(spine_->GetParent(), nullptr);
  EXPECT_EQ(hips_->GetNumChildren(), 0);
}

TEST_F(HtrFixture, WithOddNumbersReadsWhatTheyStartWith) {
  Read("odd_numbers.htr");
  EXPECT_TRUE(std::isinf(hips_->GetBaseTranslation().x()));
  EXPECT_EQ(hips_->GetBaseTranslation().y(), 0.0);
  EXPECT_EQ(hips_->GetBaseTranslation().z(), 0.0);
  EXPECT_EQ(hips_->GetBaseRotation()[0], 0.0);
  EXPECT_EQ(hips_->GetBaseRotation()[1], 5 * kRadians);
  EXPECT_EQ(hips_->GetBaseRotation()[2], 1 * kRadians);
  EXPECT_EQ(hips_->GetBoneLength(), 7.0);
  EXPECT_EQ(spine_->GetBaseTranslation().x(), 0.0);
  EXPECT_EQ(spine_->GetBaseTranslation().y(), 0.5);
  EXPECT_EQ(spine_->GetBaseTranslation().z(), 5.0);
  EXPECT_EQ(spine_->GetBaseRotation()[0], 0.0);
  EXPECT_EQ(spine_->GetBaseRotation()[1], 100 * kRadians);
  EXPECT_EQ(spine_->GetBoneLength(), 0.0);
  EXPECT_EQ(document_.GetStartFrame(), 1);
  EXPECT_EQ(hips_->GetFrameTranslation(0).x(), 1.5);
  EXPECT_EQ(hips_->GetFrameRotation(0)[0], 0.0);
  EXPECT_EQ(hips_->GetFrameRotation(0)[1], 1 * kRadians);
  EXPECT_EQ(hips_->GetFrameScale(0), 1.0);
}

TEST_F(HtrFixture, WithMissingFramesKeepsTheAnnouncedCount) {
  EXPECT_EQ(Read("frames_missing.htr").GetNumFrames(), 5u);
}

// The example of docs/formats/htr.md, and what is told about it there.
TEST(HtrDocumentation, ShowsAnExampleThatReadsAsTold) {
  std::ifstream page(std::string(ORVANE_SOURCE_DIR) + "/docs/formats/htr.md");
  const std::string text((std::istreambuf_iterator<char>(page)), {});
  const std::string fence = "```htr\n";
  const std::size_t begin = text.find(fence);
  ASSERT_NE(begin, std::string::npos);
  const std::size_t first = begin + fence.size();
  HtrDocument document;
  ASSERT_EQ(ReadHtrBytes(document, text.substr(first, text.find("```", first) - first), true), "");
  const HtrSegment& spine = *document.FindSegment("Spine");
  const auto expect_at = [](const Vector3& point, double x, double y, double z) {
    EXPECT_NEAR(point.x(), x, test::kPosition_mm);
    EXPECT_NEAR(point.y(), y, test::kPosition_mm);
    EXPECT_NEAR(point.z(), z, test::kPosition_mm);
  };
  expect_at(test::PositionOf(spine, 0), 0, 1070, 0);
  expect_at(test::TipOf(spine, 0), 0, 1470, 0);
  expect_at(test::PositionOf(spine, 1), 0, 1080, 0);
  expect_at(test::TipOf(spine, 1), 0, 1080 + 400 * std::cos(30 * kRadians), -200);
}

}  // namespace
}  // namespace orvane
