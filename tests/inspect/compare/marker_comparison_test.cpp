#include "inspect/compare/marker_comparison.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "tests/support/trc_text.h"

namespace {

using orvane::CompareMarkers;
using orvane::MarkerComparison;
using orvane::TRCDocument;
using orvane::WhichFile;
using test::TrcText;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr double kToleranceMm = 0.5;

class MarkerComparisonTest : public testing::Test {
 protected:
  MarkerComparisonTest() {
    a_.markers = {"LFHD", "RFHD"};
    a_.frames = {{"0\t0\t0", "10\t0\t0"}, {"1\t0\t0", "10\t1\t0"}, {"2\t0\t0", "10\t2\t0"}};
    b_ = a_;
  }

  MarkerComparison Compare(double tolerance_mm = kToleranceMm) {
    EXPECT_EQ(document_a_.ReadBytes(a_.Text(), false), "");
    EXPECT_EQ(document_b_.ReadBytes(b_.Text(), false), "");
    return CompareMarkers(document_a_, document_b_, tolerance_mm);
  }

  TrcText a_;
  TrcText b_;
  TRCDocument document_a_;
  TRCDocument document_b_;
};

TEST_F(MarkerComparisonTest, OfAFileAndItselfFindsNothing) {
  const MarkerComparison comparison = Compare(0.0);
  EXPECT_TRUE(comparison.HoldTheSame());
  EXPECT_EQ(comparison.overall.distance_mm.count, 6U);
  EXPECT_EQ(comparison.overall.distance_mm.largest, 0.0);
  EXPECT_FALSE(comparison.overall.first_beyond);
}

TEST_F(MarkerComparisonTest, MeasuresTheDistanceInEveryFrame) {
  b_.frames[1][1] = "13\t1\t4";
  b_.frames[2][1] = "10\t2\t0.25";
  const MarkerComparison comparison = Compare();
  const auto& marker = comparison.markers[1];
  EXPECT_EQ(marker.name, "RFHD");
  EXPECT_EQ(marker.difference.distance_mm.largest, 5.0);
  EXPECT_EQ(marker.difference.distance_mm.largest_frame, 2);
  EXPECT_EQ(marker.difference.distance_mm.Mean(), 5.25 / 3.0);
  EXPECT_EQ(marker.difference.first_beyond, 2);
  EXPECT_EQ(comparison.overall.distance_mm.Mean(), 5.25 / 6.0);
  EXPECT_EQ(comparison.farthest, 1U);
  EXPECT_EQ(comparison.beyond, 1U);
  EXPECT_TRUE(comparison.HoldTheSame());
}

TEST_F(MarkerComparisonTest, ADistanceOfTheToleranceIsWithinIt) {
  b_.frames[0][0] = "0\t0.5\t0";
  EXPECT_FALSE(Compare().overall.first_beyond);
  EXPECT_EQ(Compare(0.25).overall.first_beyond, 1);
}

TEST_F(MarkerComparisonTest, WhatOneFileAloneHasMeasuredIsBeyondAnyTolerance) {
  a_.frames[2][0] = "";
  b_.frames[1][0] = "";
  b_.frames[1][1] = "";
  const MarkerComparison comparison = Compare();
  const auto& marker = comparison.markers[0].difference;
  EXPECT_EQ(marker.distance_mm.count, 1U);
  EXPECT_EQ(marker.only_in_a, 1U);
  EXPECT_EQ(marker.only_in_b, 1U);
  EXPECT_EQ(marker.first_beyond, 2);
  EXPECT_EQ(comparison.overall.only_in_a, 2U);
  EXPECT_EQ(comparison.overall.only_in_b, 1U);
  EXPECT_EQ(comparison.overall.first_beyond, 2);
  EXPECT_EQ(comparison.beyond, 0U);
}

TEST_F(MarkerComparisonTest, AGapInBothIsNoDifference) {
  a_.frames[1][0] = "";
  b_.frames[1][0] = "";
  const MarkerComparison comparison = Compare(0.0);
  EXPECT_EQ(comparison.markers[0].difference.distance_mm.count, 2U);
  EXPECT_FALSE(comparison.overall.first_beyond);
}

TEST_F(MarkerComparisonTest, MatchesMarkersByTheirNames) {
  b_.markers = {"RFHD", "rfhd"};
  b_.frames = {{"10\t0\t0", ""}, {"10\t1\t0", ""}, {"10\t2\t0", ""}};
  const MarkerComparison comparison = Compare(0.0);
  ASSERT_EQ(comparison.markers.size(), 1U);
  EXPECT_EQ(comparison.markers[0].name, "RFHD");
  EXPECT_EQ(comparison.markers[0].difference.distance_mm.largest, 0.0);
  ASSERT_EQ(comparison.only_markers.size(), 2U);
  EXPECT_EQ(comparison.only_markers[0].file, WhichFile::kA);
  EXPECT_EQ(comparison.only_markers[0].name, "LFHD");
  EXPECT_EQ(comparison.only_markers[1].file, WhichFile::kB);
  EXPECT_EQ(comparison.only_markers[1].name, "rfhd");
  EXPECT_FALSE(comparison.HoldTheSame());
}

TEST_F(MarkerComparisonTest, MatchesFramesByTheirNumbers) {
  b_.first_frame = 2;
  b_.frames = {a_.frames[1], a_.frames[2], {"7\t7\t7", "8\t8\t8"}};
  const MarkerComparison comparison = Compare(0.0);
  ASSERT_TRUE(comparison.frames);
  EXPECT_EQ(comparison.frames->first, 2);
  EXPECT_EQ(comparison.frames->last, 3);
  EXPECT_EQ(comparison.overall.distance_mm.largest, 0.0);
  EXPECT_EQ(comparison.overall.distance_mm.count, 4U);
  ASSERT_EQ(comparison.only_frames.size(), 2U);
  EXPECT_EQ(comparison.only_frames[0].file, WhichFile::kA);
  EXPECT_EQ(comparison.only_frames[0].frames.first, 1);
  EXPECT_EQ(comparison.only_frames[0].frames.last, 1);
  EXPECT_EQ(comparison.only_frames[1].file, WhichFile::kB);
  EXPECT_EQ(comparison.only_frames[1].frames.first, 4);
  EXPECT_EQ(comparison.only_frames[1].frames.last, 4);
}

TEST_F(MarkerComparisonTest, OfFramesThatDoNotMeetComparesNone) {
  b_.first_frame = 100;
  const MarkerComparison comparison = Compare();
  EXPECT_FALSE(comparison.frames);
  EXPECT_EQ(comparison.overall.distance_mm.count, 0U);
  EXPECT_FALSE(comparison.HoldTheSame());
}

TEST_F(MarkerComparisonTest, ConvertsUnits) {
  b_.units = "cm";
  b_.frames = {{"0\t0\t0", "1\t0\t0"}, {"0.1\t0\t0", "1\t0.1\t0"}, {"0.2\t0\t0", "1\t0.3\t0"}};
  const MarkerComparison comparison = Compare();
  EXPECT_NEAR(comparison.overall.distance_mm.largest, 1.0, 1e-12);
  EXPECT_EQ(comparison.overall.first_beyond, 3);
}

TEST_F(MarkerComparisonTest, TellsAnotherFrameRate) {
  b_.data_rate = "120";
  EXPECT_TRUE(Compare().frame_rate_differs);
}

TEST_F(MarkerComparisonTest, ADistanceThatIsNoNumberIsInfinite) {
  a_.frames[0][0] = "1e999\t0\t0";
  b_.frames[0][0] = "1e999\t0\t0";
  const MarkerComparison comparison = Compare();
  EXPECT_EQ(comparison.overall.distance_mm.largest, std::numeric_limits<double>::infinity());
  EXPECT_EQ(comparison.overall.first_beyond, 1);
}

}  // namespace
