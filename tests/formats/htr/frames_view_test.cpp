#include "formats/htr/frames_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "formats/array/array_too_large.h"
#include "formats/htr/document.h"
#include "formats/htr/reader.h"
#include "formats/text/files.h"

namespace orvane {
namespace {

// At each segment and frame, what the segment says.
void ExpectFrames(const HtrDocument& document, const HtrFramesView& view) {
  ASSERT_EQ(view.segments, document.segments().size());
  for (std::size_t segment = 0; segment < view.segments; ++segment) {
    const HtrSegment& held = document.segments()[segment];
    ASSERT_LE(held.GetNumFrames(), view.frames);
    for (std::size_t frame = 0; frame < view.frames; ++frame) {
      const double* const numbers =
          view.numbers + segment * view.segment_stride + frame * view.frame_stride;
      if (frame >= held.GetNumFrames()) {
        for (std::size_t number = 0; number < 7; ++number) ASSERT_TRUE(std::isnan(numbers[number]));
        continue;
      }
      const Vector3 translation = held.GetFrameTranslation(frame);
      const EulerRotation rotation = held.GetFrameRotation(frame);
      for (unsigned axis = 0; axis < 3; ++axis) {
        ASSERT_EQ(numbers[axis], translation[axis]);
        ASSERT_EQ(numbers[3 + axis], rotation[axis]);
      }
      ASSERT_EQ(numbers[6], held.GetFrameScale(frame));
    }
  }
}

// Segments that hold so many frames each, added a segment at a time.
void AddSegments(HtrDocument& document, const std::vector<std::size_t>& counts) {
  for (const std::size_t count : counts) {
    HtrSegment* const segment =
        document.AddSegment(HtrSegment("s" + std::to_string(document.GetNumSegments())));
    for (std::size_t frame = 0; frame < count; ++frame) {
      const double value = static_cast<double>(frame + 1);
      segment->AddFrame({value, -value, value / 2, value / 4, -value / 8, value / 16, value / 32});
    }
  }
}

TEST(HtrFramesViewTest, TakesNoCopyOfSegmentsWithAsManyFrames) {
  HtrDocument document;
  AddSegments(document, {5, 5, 5});
  const HtrFramesView view = document.FramesView();
  EXPECT_EQ(view.frames, 5U);
  EXPECT_EQ(view.frame_stride, 7U);
  EXPECT_EQ(view.segment_stride, 35U);
  ExpectFrames(document, view);
  EXPECT_EQ(document.FramesView().numbers, view.numbers);
}

TEST(HtrFramesViewTest, FillsUpSegmentsWithFewerFramesOnce) {
  for (const std::vector<std::size_t>& counts :
       {std::vector<std::size_t>{2, 5, 0, 3}, {0, 0, 1}, {4, 4, 3}, {3, 4, 4}, {1, 0}}) {
    HtrDocument document;
    AddSegments(document, counts);
    const HtrFramesView view = document.FramesView();
    for (std::size_t segment = 0; segment < counts.size(); ++segment) {
      EXPECT_EQ(document.segments()[segment].GetNumFrames(), counts[segment]);
    }
    ExpectFrames(document, view);
    EXPECT_EQ(document.FramesView().numbers, view.numbers);
  }
}

TEST(HtrFramesViewTest, FollowsWhatIsDoneToFrames) {
  HtrDocument document;
  AddSegments(document, {3, 2});
  document.SetNumFrames(3);
  const double* const numbers = document.FramesView().numbers;
  ASSERT_TRUE(document.segments()[1].SetFrameTranslation(1, 7, 8, 9));
  document.ScaleLengths(2.0);
  EXPECT_EQ(document.FramesView().numbers, numbers);
  ExpectFrames(document, document.FramesView());
  EXPECT_EQ(document.segments()[1].GetFrameTranslation(1).x(), 14.0);
  document.segments()[1].AddFrame({1, 2, 3, 4, 5, 6, 7});
  ExpectFrames(document, document.FramesView());
  AddSegments(document, {4});
  ExpectFrames(document, document.FramesView());
  EXPECT_EQ(document.segments()[1].GetNumFrames(), 3U);
  document.segments()[2].AddFrame({1, 2, 3, 4, 5, 6, 7});
  document.segments()[0].AddFrame({1, 2, 3, 4, 5, 6, 7});
  ExpectFrames(document, document.FramesView());
}

TEST(HtrFramesViewTest, IsEmptyWithoutFrames) {
  HtrDocument document;
  EXPECT_EQ(document.FramesView().numbers, nullptr);
  AddSegments(document, {0, 0});
  EXPECT_EQ(document.FramesView().numbers, nullptr);
  EXPECT_EQ(document.FramesView().segments, 2U);
  EXPECT_EQ(document.FramesView().frames, 0U);
}

TEST(HtrFramesViewTest, IsRefusedWhenHardlyAnythingIsInIt) {
  HtrDocument document;
  std::vector<std::size_t> counts(20'000, 1);
  counts.front() = 1'000;
  AddSegments(document, counts);
  try {
    static_cast<void>(document.FramesView());
    ADD_FAILURE() << "1.1 GB were made of 1.2 MB";
  } catch (const ArrayTooLarge& failure) {
    EXPECT_EQ(failure.NeededBytes(), 20'000'000U * 56);
    EXPECT_EQ(failure.HeldBytes(), 20'999U * 56);
  }
  EXPECT_EQ(document.segments().front().GetFrameTranslation(999).x(), 1000.0);
}

TEST(HtrFramesViewTest, IsWhatTheFramesOfAllExamplesAre) {
  std::size_t read = 0;
  for (const char* folder : {"/examples", "/tests/data/htr", "/fuzz/corpus/htr_reader"}) {
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(ORVANE_SOURCE_DIR) + folder)) {
      if (!entry.is_regular_file()) continue;
      HtrDocument document;
      const std::string bytes = ReadFileBytes(entry.path().string()).value();
      if (!ReadHtrBytes(document, bytes, true).empty()) continue;
      SCOPED_TRACE(entry.path());
      ExpectFrames(document, document.FramesView());
      ++read;
    }
  }
  EXPECT_GT(read, 8U);
}

}  // namespace
}  // namespace orvane
