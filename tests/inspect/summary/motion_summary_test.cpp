#include "inspect/summary/motion_summary.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>

#include "inspect/summary/subject_measure.h"

namespace {

using orvane::HierarchyEntry;
using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::ListHierarchy;
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

TEST(MotionSummaryTest, TheBoxIsAroundTheFramesThatEachSegmentHolds) {
  HtrDocument document;
  HtrSegment* hips = Add(document, "Hips", nullptr);
  hips->AddFrame({5, 6, 7}, orvane::Vector3{0, 0, 0}, 1);
  HtrSegment* prop = Add(document, "Prop", nullptr);
  for (int frame = 0; frame < 2; ++frame) prop->AddFrame({8, 8, 8}, orvane::Vector3{0, 0, 0}, 1);
  const auto summary = SummarizeMotion(document, ListHierarchy(document));
  ASSERT_TRUE(summary.bounds);
  EXPECT_THAT(summary.bounds->least, ElementsAre(5, 6, 7));
  EXPECT_THAT(summary.bounds->most, ElementsAre(8, 8, 8));
}

// What is measured on the way over all frames is what is measured by itself, whether each frame is
// looked at or some.
TEST(MotionSummaryTest, TheSubjectIsTheOneThatIsMeasuredByItself) {
  for (const int frames : {1, 200, 201, 999}) {
    HtrDocument document;
    HtrSegment* hips = Add(document, "Hips", nullptr);
    HtrSegment* head = Add(document, "Head", hips);
    head->SetBaseTranslation(0, 1.5, 0);
    HtrSegment* lost = Add(document, "Lost", nullptr);
    lost->SetIsRoot(false);
    for (int frame = 0; frame < frames; ++frame) {
      const double at = 0.01 * frame;
      hips->AddFrame({at, at * at, -at}, orvane::Vector3{at, 0, 2 * at}, 1);
      if (frame < 700) head->AddFrame({}, orvane::Vector3{}, 1);
      for (int i = 0; i < 3; ++i) lost->AddFrame({9, 9, 9}, orvane::Vector3{}, 1);
    }
    const auto alone = orvane::MeasureSubject(document);
    const auto summary = SummarizeMotion(document, ListHierarchy(document));
    ASSERT_TRUE(alone && summary.subject) << frames;
    EXPECT_EQ(summary.subject->points, 2U);
    EXPECT_EQ(summary.subject->extent, alone->extent);
    EXPECT_EQ(summary.subject->bounds.least, alone->bounds.least);
    EXPECT_EQ(summary.subject->bounds.most, alone->bounds.most);
    EXPECT_EQ(summary.subject->floor_change, alone->floor_change);
    EXPECT_EQ(summary.subject->way, alone->way);
  }
}

TEST(MotionSummaryTest, ASingleJointIsNoSubject) {
  HtrDocument document;
  Add(document, "Hips", nullptr)->AddFrame({5, 6, 7}, orvane::Vector3{0, 0, 0}, 1);
  EXPECT_FALSE(SummarizeMotion(document, ListHierarchy(document)).subject);
}

}  // namespace
