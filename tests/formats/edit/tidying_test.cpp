#include "formats/edit/tidying.h"

#include <gtest/gtest.h>

#include "tests/formats/edit/small_documents.h"

namespace {

using orvane::FramesThatCount;
using orvane::HtrDocument;
using orvane::TRCDocument;

TEST(Tidying, MakesRootsOfSegmentsWithoutParentsAndCountsFrames) {
  HtrDocument walker;
  test::FillWalker(walker);
  walker.SetNumFrames(1000);
  walker.AddSegment(orvane::HtrSegment("Stray"));
  orvane::Tidy(walker);
  EXPECT_EQ(walker.GetNumFrames(), 6U);
  EXPECT_TRUE(walker.FindSegment("Stray")->GetIsRoot());
  EXPECT_FALSE(walker.FindSegment("Head")->GetIsRoot());
}

TEST(Tidying, LeavesOutFramesWithoutPositionsThatNobodyAnnounces) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  for (orvane::TRCMarker& marker : cloud.markers()) marker.AppendDropouts(2);
  cloud.SetNumFrames(8);
  EXPECT_EQ(FramesThatCount(cloud), 8U);
  cloud.SetNumFrames(7);
  EXPECT_EQ(FramesThatCount(cloud), 7U);
  cloud.SetNumFrames(3);
  EXPECT_EQ(FramesThatCount(cloud), 6U);
  cloud.SetNumFrames(0);
  EXPECT_EQ(FramesThatCount(cloud), 8U);
}

}  // namespace
