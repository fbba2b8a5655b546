#include "formats/edit/frame_cut.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "formats/htr/cut_text.h"
#include "formats/htr/reader.h"
#include "formats/trc/cut_text.h"
#include "tests/formats/edit/small_documents.h"
#include "tests/formats/trc/samples.h"
#include "tests/support/document_bits.h"
#include "tests/support/files.h"

namespace {

using orvane::CutFrames;
using orvane::HtrDocument;
using orvane::TRCDocument;
using test::BitsOf;
using testing::ElementsAre;

TEST(FrameCut, KeepsFramesWithTheirNumbersAndGaps) {
  TRCDocument cloud;
  test::FillCloud(cloud);
  TRCDocument cut;
  CutFrames(cloud, 2, 4, cut);
  EXPECT_EQ(cut.FirstFrame(), 103);
  EXPECT_EQ(cut.NumFrames(), 2);
  EXPECT_EQ(cut.DataRate(), 60);
  using Position = std::array<double, 3>;
  EXPECT_THAT(test::SamplesOf(*cut.MarkerAt(0)),
              ElementsAre(Position{20, 2, 3}, Position{30, 2, 3}));
  EXPECT_THAT(test::SamplesOf(*cut.MarkerAt(1)), ElementsAre(std::nullopt, Position{3, 20, 30}));
}

TEST(FrameCut, OfAllFramesIsTheSameDocument) {
  HtrDocument walker;
  test::FillWalker(walker);
  HtrDocument cut;
  CutFrames(walker, 0, 6, cut);
  EXPECT_EQ(BitsOf(cut), BitsOf(walker));
}

TEST(FrameCut, LeavesASegmentAsManyFramesAsItHas) {
  HtrDocument walker;
  test::FillWalker(walker, 3);
  test::AddSegment(walker, "Short", nullptr).AddFrame({}, orvane::Vector3{}, 1);
  HtrDocument cut;
  CutFrames(walker, 1, 3, cut);
  EXPECT_EQ(cut.GetStartFrame(), 12);
  EXPECT_EQ(cut.GetNumFrames(), 2U);
  EXPECT_EQ(cut.FindSegment("Head")->GetNumFrames(), 2U);
  EXPECT_EQ(cut.FindSegment("Short")->GetNumFrames(), 0U);
}

// Links are the copy's own, also of segments that are listed twice, or in a circle.
TEST(FrameCut, KeepsEveryLink) {
  HtrDocument walker;
  test::FillWalker(walker);
  orvane::HtrSegment* const leg = walker.FindSegment("Leg");
  leg->SetParent(walker.FindSegment("Hips"));
  orvane::HtrSegment* const ring = walker.AddSegment(orvane::HtrSegment("Ring"));
  ring->SetParent(ring);
  HtrDocument cut;
  CutFrames(walker, 0, 6, cut);
  EXPECT_EQ(BitsOf(cut), BitsOf(walker));
  EXPECT_EQ(cut.FindSegment("Spine")->GetParent(), cut.FindSegment("Hips"));
}

// Two ways to the same frames: of a file's text, and of a document.
TEST(FrameCut, IsWhatTheCutTextReadsAs) {
  const std::string motion = test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.htr");
  HtrDocument walk;
  ASSERT_EQ(ReadHtrBytes(walk, motion, true), "");
  HtrDocument cut;
  CutFrames(walk, 10, 25, cut);
  HtrDocument read;
  ASSERT_EQ(ReadHtrBytes(read, *orvane::CutHtrFrames(motion, 10, 25), true), "");
  EXPECT_EQ(BitsOf(cut), BitsOf(read));

  const std::string markers = test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.trc");
  TRCDocument cloud;
  ASSERT_EQ(cloud.ReadBytes(markers, false), "");
  TRCDocument cut_cloud;
  CutFrames(cloud, 10, 25, cut_cloud);
  TRCDocument read_cloud;
  ASSERT_EQ(read_cloud.ReadBytes(*orvane::CutTrcFrames(markers, 10, 25), false), "");
  EXPECT_EQ(BitsOf(cut_cloud), BitsOf(read_cloud));
}

}  // namespace
