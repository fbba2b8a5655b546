#include "cli/motion_summary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>

#include "plugin/htr/reader.h"
#include "plugin/units/units.h"

namespace {

using cli::HierarchyEntry;
using cli::ListHierarchy;
using cli::Point;
using orvane::HtrDocument;
using orvane::HtrSegment;
using testing::ElementsAre;

HtrSegment* Add(HtrDocument& document, const std::string& name, HtrSegment* parent) {
  HtrSegment* segment = document.AddSegment(HtrSegment(name));
  segment->SetIsRoot(parent == nullptr);
  if (parent != nullptr) segment->SetParent(parent);
  return segment;
}

std::vector<std::string> Names(const std::vector<HierarchyEntry>& hierarchy) {
  std::vector<std::string> names;
  names.reserve(hierarchy.size());
  for (const HierarchyEntry& entry : hierarchy) names.push_back(entry.segment->GetName());
  return names;
}

TEST(HierarchyTest, ListsParentsBeforeTheirChildrenDepthFirst) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  HtrSegment* spine = Add(document, "Spine", hips);
  Add(document, "Leg", hips);
  Add(document, "Head", spine);
  Add(document, "Prop", nullptr);
  const auto hierarchy = ListHierarchy(document);
  EXPECT_THAT(Names(hierarchy), ElementsAre("Hips", "Spine", "Head", "Leg", "Prop"));
  EXPECT_EQ(hierarchy[0].parent, 0U);
  EXPECT_EQ(hierarchy[2].parent, 1U);
  EXPECT_EQ(hierarchy[2].depth, 2U);
  EXPECT_EQ(hierarchy[3].parent, 0U);
  EXPECT_EQ(hierarchy[4].parent, 4U);
  EXPECT_EQ(hierarchy[4].depth, 0U);
}

TEST(HierarchyTest, ListsAChildThatIsLinkedTwiceOnce) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  HtrSegment* spine = Add(document, "Spine", hips);
  spine->SetParent(hips);
  EXPECT_THAT(Names(ListHierarchy(document)), ElementsAre("Hips", "Spine"));
}

TEST(HierarchyTest, SegmentsInACircleAndWithoutParentAreUnattached) {
  HtrDocument document;
  Add(document, "Hips", nullptr);
  HtrSegment* left = Add(document, "Left", nullptr);
  HtrSegment* right = Add(document, "Right", left);
  left->SetIsRoot(false);
  left->SetParent(right);
  document.AddSegment(HtrSegment("Lost"));
  std::vector<std::string> names;
  for (const HtrSegment* segment : ListUnattached(document, ListHierarchy(document))) {
    names.push_back(segment->GetName());
  }
  EXPECT_THAT(names, ElementsAre("Left", "Right", "Lost"));
}

TEST(HierarchyTest, AChainOfAHundredThousandIsListed) {
  constexpr std::size_t kLength = 100000;
  HtrDocument document;
  HtrSegment* last = nullptr;
  for (std::size_t i = 0; i < kLength; ++i) last = Add(document, std::to_string(i), last);
  const auto hierarchy = ListHierarchy(document);
  ASSERT_EQ(hierarchy.size(), kLength);
  EXPECT_EQ(hierarchy.back().depth, kLength - 1);
}

TEST(MotionSummaryTest, AJointStandsWhereItsParentsPutIt) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  hips->SetBaseTranslation(1, 2, 3);
  hips->AddFrame({10, 0, 0}, orvane::Vector3{0, 0, 90 * orvane::kRadiansPerDegree}, 1);
  HtrSegment* spine = Add(document, "Spine", hips);
  spine->SetBaseTranslation(0, 5, 0);
  spine->AddFrame({0, 0, 1}, orvane::Vector3{0, 0, 0}, 1);
  const std::vector<Point> joints = JointPositions(ListHierarchy(document), 0);
  EXPECT_THAT(joints[0], ElementsAre(11, 2, 3));
  EXPECT_NEAR(joints[1][0], 6, 1e-12);
  EXPECT_NEAR(joints[1][1], 2, 1e-12);
  EXPECT_NEAR(joints[1][2], 4, 1e-12);
}

TEST(MotionSummaryTest, CoordinatesThatAreNoNumbersAreLeftOutOfTheBox) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  hips->AddFrame({std::nan(""), 1, 2}, orvane::Vector3{0, 0, 0}, 1);
  EXPECT_FALSE(SummarizeMotion(document, ListHierarchy(document)).bounds);
  hips->AddFrame({5, 6, 7}, orvane::Vector3{0, 0, 0}, 1);
  const auto summary = SummarizeMotion(document, ListHierarchy(document));
  ASSERT_TRUE(summary.bounds);
  EXPECT_THAT(summary.bounds->least, ElementsAre(5, 6, 7));
  EXPECT_THAT(summary.bounds->most, ElementsAre(5, 6, 7));
}

// The recording's own documentation tells where two joints stand at frame 301.
TEST(MotionSummaryTest, ARecordingComesOutWhereItsMakersSay) {
  const std::string file = ORVANE_SOURCE_DIR "/../shared/data/walk-31-segments.htr";
  if (!std::filesystem::exists(file)) GTEST_SKIP() << "no recording beside the sources";
  HtrDocument document;
  ASSERT_EQ(orvane::ReadHtrFile(document, file, true), "");
  const auto hierarchy = ListHierarchy(document);
  const std::vector<Point> joints = JointPositions(hierarchy, 300);
  for (std::size_t i = 0; i < hierarchy.size(); ++i) {
    const std::string name = hierarchy[i].segment->GetName();
    if (name == "LeftFoot") {
      EXPECT_NEAR(joints[i][0], 60.2, 0.06);
      EXPECT_NEAR(joints[i][1], 69.9, 0.06);
      EXPECT_NEAR(joints[i][2], 780.1, 0.06);
    } else if (name == "RightHand") {
      EXPECT_NEAR(joints[i][0], -195.3, 0.06);
      EXPECT_NEAR(joints[i][1], 712.0, 0.06);
      EXPECT_NEAR(joints[i][2], 729.1, 0.06);
    }
  }
}

}  // namespace
