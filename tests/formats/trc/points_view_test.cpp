#include "formats/trc/points_view.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <limits>
#include <string>
#include <vector>

#include "formats/array/array_too_large.h"
#include "formats/text/files.h"
#include "formats/trc/document.h"
#include "tests/support/trc_text.h"

namespace orvane {
namespace {

using test::TrcText;

// At each frame and marker, what GetSample says, which asking for the view does not change.
void ExpectSamples(const TRCDocument& document, const TRCPointsView& view) {
  ASSERT_EQ(view.markers, document.MarkerCount());
  for (std::size_t marker = 0; marker < view.markers; ++marker) {
    const TRCMarker& held = *document.MarkerAt(marker);
    ASSERT_EQ(held.SampleCount(), view.frames);
    for (std::size_t frame = 0; frame < view.frames; ++frame) {
      const double* const point =
          view.points + frame * view.frame_stride + marker * view.marker_stride;
      double sample[3] = {};
      const bool is_present = held.GetSample(frame, sample[0], sample[1], sample[2]);
      for (std::size_t axis = 0; axis < 3; ++axis) {
        ASSERT_EQ(std::isnan(point[axis]), !is_present) << frame << ' ' << marker;
        if (is_present) {
          ASSERT_EQ(point[axis], sample[axis]) << frame << ' ' << marker;
        }
      }
      const std::size_t bit = frame * view.markers + marker;
      ASSERT_EQ((view.measured[bit / 64] >> (bit % 64) & 1U) != 0,
                held.PositionAt(frame) != nullptr);
    }
  }
}

// Three frames of two markers, of which the last is blank.
std::string Ragged() {
  return TrcText{.markers = {"a", "b"}, .frames = {{"1\t2\t3", "4\t5\t6"}, {"", "7\t8\t9"}}}
             .Text() +
         "3\t0.1\t10\t11\t12\n\n\n4\t0.2\t1\t1\n\n";
}

TEST(TRCPointsViewTest, IsWhatTheSamplesAre) {
  TRCDocument document;
  ASSERT_EQ(document.ReadBytes(Ragged(), false), "");
  const std::size_t frames = document.MarkerAt(0)->SampleCount();
  const TRCPointsView view = document.PointsView();
  EXPECT_EQ(view.frames, frames);
  EXPECT_EQ(view.frame_stride, 6U);
  EXPECT_EQ(view.marker_stride, 3U);
  ExpectSamples(document, view);
  EXPECT_EQ(document.PointsView().points, view.points);
}

// A file whose rows are whole is an array already.
TEST(TRCPointsViewTest, TakesNoCopyOfWholeRows) {
  TRCDocument document;
  const TrcText text{.markers = {"a", "b"}, .frames = {{"1\t2\t3", "4\t5\t6"}, {"", "7\t8\t9"}}};
  ASSERT_EQ(document.ReadBytes(text.Text(), false), "");
  const double* const first = document.MarkerAt(0)->PositionAt(0);
  EXPECT_EQ(document.PointsView().points, first);
}

TEST(TRCPointsViewTest, FollowsWhatIsDoneToSamples) {
  TRCDocument document;
  ASSERT_EQ(document.ReadBytes(Ragged(), false), "");
  const double* const points = document.PointsView().points;
  ASSERT_TRUE(document.MarkerAt(0)->SetSample(1, 100, 101, 102));
  ASSERT_TRUE(document.MarkerAt(1)->SetSample(0, 103, 104, 105));
  ExpectSamples(document, document.PointsView());
  document.SetUnits(1);
  document.ConvertUnits(0);
  ExpectSamples(document, document.PointsView());
  document.Scale(-2);
  ExpectSamples(document, document.PointsView());
  EXPECT_EQ(document.PointsView().points, points);
  document.MarkerAt(1)->Scale(3);
  ExpectSamples(document, document.PointsView());
  for (TRCMarker& marker : document.markers()) marker.AppendDropout();
  ExpectSamples(document, document.PointsView());
  document.MarkerAt(0)->AppendPosition(1, 2, 3);
  document.MarkerAt(1)->AppendPosition(4, 5, 6);
  ExpectSamples(document, document.PointsView());
}

TEST(TRCPointsViewTest, KnowsScaledDropoutsOfShortRows) {
  TRCDocument document;
  ASSERT_EQ(document.ReadBytes(Ragged(), false), "");
  document.Scale(2);
  ExpectSamples(document, document.PointsView());
}

TEST(TRCPointsViewTest, BringsMarkersThatWereAddedTogether) {
  TRCDocument document;
  TRCMarker* const longest = document.AddMarker(TRCMarker("a"));
  for (int frame = 0; frame < 70; ++frame) longest->AppendPosition(frame, 1, 2);
  document.AddMarker(TRCMarker("b"))->AppendPosition(std::numeric_limits<double>::infinity(), 0, 0);
  document.AddMarker(TRCMarker("c"));
  const TRCPointsView view = document.PointsView();
  EXPECT_EQ(view.frames, 70U);
  ExpectSamples(document, view);
  document.AddMarker(*document.MarkerAt(1));
  TRCMarker another("d");
  another.AppendDropouts(3);
  document.AddMarker(another);
  ExpectSamples(document, document.PointsView());
}

TEST(TRCPointsViewTest, IsEmptyWithoutFramesOrMarkers) {
  TRCDocument document;
  EXPECT_EQ(document.PointsView().points, nullptr);
  EXPECT_EQ(document.PointsView().markers, 0U);
  document.AddMarker(TRCMarker("a"));
  const TRCPointsView view = document.PointsView();
  EXPECT_EQ(view.points, nullptr);
  EXPECT_EQ(view.frames, 0U);
  EXPECT_EQ(view.markers, 1U);
}

// At once, though they are as many frames as a number of this machine holds.
TEST(TRCPointsViewTest, IsRefusedForDropoutsWithoutEnd) {
  TRCDocument document;
  for (const char* name : {"a", "b", "c"}) {
    TRCMarker* const marker = document.AddMarker(TRCMarker(name));
    marker->AppendPosition(1, 2, 3);
    marker->AppendDropouts(std::numeric_limits<std::size_t>::max() / 4);
    EXPECT_EQ(marker->Gaps().size(), 1U);
  }
  EXPECT_THROW(static_cast<void>(document.PointsView()), ArrayTooLarge);
}

TEST(TRCPointsViewTest, IsRefusedWhenHardlyAnythingIsInIt) {
  TrcText text;
  for (int marker = 0; marker < 500; ++marker) text.markers.push_back(std::to_string(marker));
  TRCDocument document;
  ASSERT_EQ(document.ReadBytes(text.Text() + std::string(100'000, '\n') + "1\t0\t1\t2\t3\n", false),
            "");
  try {
    static_cast<void>(document.PointsView());
    ADD_FAILURE() << "1.2 GB were made of one position";
  } catch (const ArrayTooLarge& failure) {
    EXPECT_EQ(failure.NeededBytes(), document.MarkerAt(0)->SampleCount() * 12'000);
    EXPECT_EQ(failure.HeldBytes(), 24U);
  }
  const std::size_t last = document.MarkerAt(0)->SampleCount() - 1;
  EXPECT_NE(document.MarkerAt(0)->PositionAt(last), nullptr);
}

TEST(TRCPointsViewTest, IsWhatTheSamplesOfAllExamplesAre) {
  std::size_t read = 0;
  for (const char* folder : {"/examples", "/fuzz/corpus/trc_reader"}) {
    for (const auto& entry :
         std::filesystem::directory_iterator(std::string(ORVANE_SOURCE_DIR) + folder)) {
      const bool is_code = entry.path().extension() != ".trc" && folder == std::string("/examples");
      if (is_code || !entry.is_regular_file()) continue;
      for (const bool is_scaled : {false, true}) {
        TRCDocument document;
        if (!document.ReadBytes(ReadFileBytes(entry.path().string()).value(), true).empty())
          continue;
        if (is_scaled) document.Scale(0.5);
        SCOPED_TRACE(entry.path());
        ExpectSamples(document, document.PointsView());
        ++read;
      }
    }
  }
  EXPECT_GT(read, 4U);
}

}  // namespace
}  // namespace orvane
