#include "formats/edit/selection.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/formats/edit/small_documents.h"
#include "tests/formats/trc/samples.h"

namespace {

using orvane::HtrDocument;
using orvane::TRCDocument;
using testing::ElementsAre;

TEST(Selection, KeepsMarkersInTheOrderOfTheFile) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  TRCDocument selected;
  SelectMarkers(cloud, {"C", "B", "nobody", "a"}, selected);
  EXPECT_THAT(test::NamesOf(selected), ElementsAre("B", "C"));
  EXPECT_EQ(test::SamplesOf(*selected.MarkerAt(0)), test::SamplesOf(*cloud.MarkerAt(1)));
  EXPECT_EQ(selected.NumFrames(), 6);
}

TEST(Selection, KeepsWhatASegmentHangsFrom) {
  HtrDocument walker;
  test::FillWalker(walker);
  HtrDocument selected;
  SelectSegments(walker, {"Head"}, selected);
  EXPECT_THAT(selected.GetSegmentNames(), ElementsAre("Hips", "Spine", "Head"));
  EXPECT_EQ(selected.FindSegment("Head")->GetParent(), selected.FindSegment("Spine"));
  EXPECT_EQ(selected.FindSegment("Hips")->GetNumChildren(), 1);
  EXPECT_EQ(selected.FindSegment("Hips")->GetNumFrames(), 6U);
  EXPECT_EQ(selected.FindSegment("Head")->GetFrameScale(5), 6.0);
}

TEST(Selection, EndsWhereSegmentsHangFromEachOther) {
  HtrDocument ring;
  orvane::HtrSegment* const one = ring.AddSegment(orvane::HtrSegment("One"));
  orvane::HtrSegment* const other = ring.AddSegment(orvane::HtrSegment("Other"));
  one->SetParent(other);
  other->SetParent(one);
  HtrDocument selected;
  SelectSegments(ring, {"One"}, selected);
  EXPECT_THAT(selected.GetSegmentNames(), ElementsAre("One", "Other"));
}

}  // namespace
