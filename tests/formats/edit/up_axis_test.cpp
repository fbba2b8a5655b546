#include "formats/edit/up_axis.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/pose/pose_walk.h"
#include "tests/formats/edit/small_documents.h"
#include "tests/formats/trc/samples.h"

namespace {

using orvane::HtrDocument;
using orvane::ListHierarchy;
using orvane::PoseParts;
using orvane::PoseWalk;
using orvane::TRCDocument;

TEST(UpAxis, OfMarkersChangesPlacesAndASignAlone) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  orvane::TurnZUp(cloud);
  using Position = std::array<double, 3>;
  EXPECT_EQ(test::SampleAt(*cloud.MarkerAt(0), 1), (Position{10, 3, -2}));
  EXPECT_EQ(test::SampleAt(*cloud.MarkerAt(1), 1), std::nullopt);
}

TEST(UpAxis, OfASkeletonTurnsTheWorldOfEverySegment) {
  HtrDocument before;
  test::FillWalker(before);
  HtrDocument after;
  test::FillWalker(after);
  after.SetGlobalAxisofGravity(2);
  orvane::TurnZUp(after);
  EXPECT_EQ(after.GetGlobalAxisofGravity(), 1U);
  PoseWalk old_walk(ListHierarchy(before), PoseParts::kPositionsAndRotations);
  PoseWalk new_walk(ListHierarchy(after), PoseParts::kPositionsAndRotations);
  for (std::size_t frame = 0; frame < 6; ++frame) {
    old_walk.MoveTo(frame);
    new_walk.MoveTo(frame);
    for (std::size_t entry = 0; entry < 4; ++entry) {
      const orvane::Point& old_place = old_walk.PositionOf(entry);
      const orvane::Point& place = new_walk.PositionOf(entry);
      EXPECT_NEAR(place[0], old_place[0], 1e-9);
      EXPECT_NEAR(place[1], old_place[2], 1e-9);
      EXPECT_NEAR(place[2], -old_place[1], 1e-9);
    }
  }
}

}  // namespace
