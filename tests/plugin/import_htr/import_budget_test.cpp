#include "plugin/import_htr/import_budget.h"

#include <gtest/gtest.h>

#include <string>

namespace orvane {
namespace {

// A chain of `length` segments, each listed `times` times by its parent; returns the root.
HtrSegment& AddChain(HtrDocument& document, int length, int times) {
  HtrSegment* root = document.AddSegment(HtrSegment("S0"));
  HtrSegment* parent = root;
  for (int i = 1; i < length; ++i) {
    HtrSegment* child = document.AddSegment(HtrSegment("S" + std::to_string(i)));
    for (int time = 0; time < times; ++time) child->SetParent(parent);
    parent = child;
  }
  return *root;
}

TEST(ImportBudgetTest, CountsASegmentAsOftenAsItIsListed) {
  HtrDocument document;
  const HtrSegment& root = AddChain(document, 4, 2);  // 1 + 2 + 4 + 8
  EXPECT_TRUE(HierarchyFits(root, 15));
  EXPECT_FALSE(HierarchyFits(root, 14));
}

TEST(ImportBudgetTest, AHierarchyOfAnyDepthFitsWhenEverySegmentIsListedOnce) {
  HtrDocument document;
  const HtrSegment& root = AddChain(document, 100'000, 1);
  EXPECT_TRUE(HierarchyFits(root, SegmentBudget(document, 1'000'000'000)));
}

TEST(ImportBudgetTest, AFewRepetitionsFitAndManyLevelsOfThemDoNot) {
  HtrDocument small;
  const HtrSegment& small_root = AddChain(small, 15, 2);
  EXPECT_TRUE(HierarchyFits(small_root, SegmentBudget(small, 1)));
  HtrDocument large;
  const HtrSegment& large_root = AddChain(large, 60, 2);
  EXPECT_FALSE(HierarchyFits(large_root, SegmentBudget(large, 1)));
}

TEST(ImportBudgetTest, ACircleDoesNotFitAndIsFoundOutInTime) {
  HtrDocument document;
  HtrSegment& root = AddChain(document, 3, 1);
  root.SetParent(document.FindSegment("S2"));
  EXPECT_FALSE(HierarchyFits(root, SegmentBudget(document, 1)));
}

TEST(ImportBudgetTest, TheBudgetGrowsWithTheFramesHeldAndShrinksWithThoseAskedFor) {
  HtrDocument document;
  HtrSegment& root = AddChain(document, 1, 1);
  for (int i = 0; i < 1000; ++i) root.AddFrame(Vector3(), Vector3(), 1.0);
  EXPECT_GT(SegmentBudget(document, 10), SegmentBudget(document, 100));
  EXPECT_EQ(SegmentBudget(document, 2'000'000'000), 1);
}

}  // namespace
}  // namespace orvane
