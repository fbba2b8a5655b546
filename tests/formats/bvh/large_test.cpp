#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>

#include "tests/formats/bvh/skeletons.h"

namespace {

using orvane::HtrDocument;
using orvane::HtrSegment;
using test::AddFrame;
using test::AddSegment;
using test::TextOf;

std::size_t CountOf(char character, const std::string& text) {
  return static_cast<std::size_t>(std::count(text.begin(), text.end(), character));
}

TEST(BvhLargeTest, SeventyThousandFramesAreLinesOfTheirOwn) {
  constexpr int kFrames = 70'000;
  HtrDocument document;
  HtrSegment* hips = AddSegment(document, "Hips", nullptr);
  HtrSegment* spine = AddSegment(document, "Spine", hips);
  for (int frame = 0; frame < kFrames; ++frame) {
    AddFrame(*hips, {static_cast<double>(frame), 0, 0});
    AddFrame(*spine, {}, {0, 0, 0.5 * frame});
  }
  const std::string text = TextOf(document);
  EXPECT_NE(text.find("\nFrames: 70000\n"), std::string::npos);
  EXPECT_TRUE(
      text.ends_with("\n69999.000000 0.000000 0.000000 0.000000 0.000000 0.000000 34999.500000 "
                     "0.000000 0.000000\n"));
  EXPECT_EQ(CountOf('\n', text), 18U + kFrames);
}

// In proportion to the segments, although each hangs from the one before.
TEST(BvhLargeTest, AChainOfAHundredThousandSegmentsIsNoLongerThanTheyAre) {
  constexpr std::size_t kSegments = 100'000;
  HtrDocument document;
  HtrSegment* segment = nullptr;
  for (std::size_t index = 0; index < kSegments; ++index) {
    segment = AddSegment(document, "Bone" + std::to_string(index), segment);
    segment->SetBaseTranslation(0, 10, 0);
    AddFrame(*segment, {});
  }
  const std::string text = TextOf(document);
  EXPECT_EQ(CountOf('{', text), kSegments + 1);
  EXPECT_EQ(CountOf('}', text), kSegments + 1);
  EXPECT_LT(text.size(), 600 * kSegments);
}

}  // namespace
