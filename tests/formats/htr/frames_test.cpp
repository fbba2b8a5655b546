#include "formats/htr/frames.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "formats/htr/document.h"

namespace orvane {
namespace {

HtrFrame FrameOf(double value) {
  return {value, -value, value / 2, value / 4, -value / 8, value / 16, value / 32};
}

void ExpectFrames(const HtrSegment& segment, const std::vector<double>& values) {
  ASSERT_EQ(segment.GetNumFrames(), values.size());
  for (std::size_t index = 0; index < values.size(); ++index) {
    const HtrFrame expected = FrameOf(values[index]);
    const Vector3 translation = segment.GetFrameTranslation(index);
    const EulerRotation rotation = segment.GetFrameRotation(index);
    for (unsigned axis = 0; axis < 3; ++axis) {
      EXPECT_EQ(translation[axis], expected[axis]);
      EXPECT_EQ(rotation[axis], expected[3 + axis]);
    }
    EXPECT_EQ(segment.GetFrameScale(index), expected[6]);
  }
}

// Against plain lists, in whatever order the segments of one document get their frames.
TEST(HtrFramesTest, StayThoseOfTheirSegments) {
  std::mt19937 random(3);
  for (int round = 0; round < 100; ++round) {
    HtrDocument document;
    std::vector<std::vector<double>> values(4);
    for (std::size_t index = 0; index < values.size(); ++index) {
      HtrSegment segment("s" + std::to_string(index));
      if (index == 2) segment.AddFrame(FrameOf(-1));
      if (index == 2) values[index].push_back(-1);
      ASSERT_NE(document.AddSegment(segment), nullptr);
    }
    for (int step = 0; step < 40; ++step) {
      const std::size_t index = random() % values.size();
      if (random() % 4 == 0) document.segments()[index].ReserveFrames(random() % 50);
      for (std::size_t count = random() % 5; count > 0; --count) {
        document.segments()[index].AddFrame(FrameOf(step));
        values[index].push_back(step);
      }
    }
    for (std::size_t index = 0; index < values.size(); ++index) {
      ExpectFrames(document.segments()[index], values[index]);
    }
  }
}

TEST(HtrFramesTest, OfACopyAreItsOwn) {
  HtrDocument document;
  HtrSegment* const first = document.AddSegment(HtrSegment("first"));
  first->AddFrame(FrameOf(1));
  HtrSegment copy = *first;
  ASSERT_TRUE(copy.SetFrameTranslation(0, 7, 8, 9));
  copy.AddFrame(FrameOf(2));
  ExpectFrames(*first, {1});
  EXPECT_EQ(copy.GetFrameTranslation(0).x(), 7.0);
  copy = *first;
  ExpectFrames(copy, {1});
}

TEST(HtrFramesTest, OfAnEmptiedDocumentAreGone) {
  HtrDocument document;
  document.AddSegment(HtrSegment("a"))->AddFrame(FrameOf(1));
  document.Clear();
  HtrSegment* const again = document.AddSegment(HtrSegment("a"));
  EXPECT_EQ(again->GetNumFrames(), 0U);
  again->AddFrame(FrameOf(2));
  ExpectFrames(*again, {2});
}

}  // namespace
}  // namespace orvane
