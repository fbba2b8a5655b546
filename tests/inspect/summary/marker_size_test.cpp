#include "inspect/summary/marker_size.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "formats/units/units.h"

namespace {

using orvane::ChooseMarkerSize;
using orvane::RoundSize;
using orvane::TRCDocument;
using orvane::TRCMarker;

constexpr double kInfinity = std::numeric_limits<double>::infinity();

// Two markers that are so far from each other along `axis` in each frame; nothing in frames of -1.
void Spread(const std::vector<double>& sides, int axis, TRCDocument& document) {
  TRCMarker still("still");
  TRCMarker moving("moving");
  for (const double side : sides) {
    if (side < 0.0) {
      still.AppendDropout();
      moving.AppendDropout();
      continue;
    }
    still.AppendPosition(100, 100, 100);
    moving.AppendPosition(100 + (axis == 0 ? side : 0.0), 100 + (axis == 1 ? side : 0.0),
                          100 + (axis == 2 ? side : 0.0));
  }
  EXPECT_NE(document.AddMarker(std::move(still)), nullptr);
  EXPECT_NE(document.AddMarker(std::move(moving)), nullptr);
}

double SizeFor(const std::vector<double>& sides, double scale = 1.0, int axis = 1,
               const std::string& unit = "mm") {
  TRCDocument document;
  document.SetUnits(static_cast<std::int32_t>(orvane::ParseCalibrationUnits(unit)));
  Spread(sides, axis, document);
  return ChooseMarkerSize(document, scale);
}

TEST(MarkerSize, IsRoundAndNearestInRatio) {
  const std::vector<std::pair<double, double>> rows = {
      {1.0, 1.0},   {1.41, 1.0},  {1.42, 2.0},  {2.0, 2.0},    {2.23, 2.0},
      {2.24, 2.5},  {3.53, 2.5},  {3.54, 5.0},  {7.07, 5.0},   {7.08, 10.0},
      {9.99, 10.0}, {25.2, 25.0}, {14.2, 20.0}, {0.3, 0.25},   {0.0042, 0.005},
      {0.15, 0.2},  {1800, 2000}, {8e-9, 1e-8}, {3e20, 2.5e20}};
  for (const auto& [size, rounded] : rows) EXPECT_EQ(RoundSize(size), rounded) << size;
}

TEST(MarkerSize, IsOneAndAHalfPercentOfTheLongestSide) {
  for (const int axis : {0, 1, 2}) EXPECT_EQ(SizeFor({1700.0}, 1.0, axis), 25.0) << axis;
}

TEST(MarkerSize, GoesByTheMedianOfTheFramesThatHaveMarkers) {
  EXPECT_EQ(SizeFor({1700, 1700, 1e9, 1700, 1}), 25.0);
  EXPECT_EQ(SizeFor({-1, -1, -1, 1700}), 25.0);
}

TEST(MarkerSize, IsInMillimetersOfTheScene) {
  EXPECT_EQ(SizeFor({170}, 1.0, 1, "cm"), 25.0);
  EXPECT_EQ(SizeFor({1.7}, 1.0, 1, "m"), 25.0);
  EXPECT_EQ(SizeFor({1700}, 4.0), 100.0);
  EXPECT_EQ(SizeFor({1700}, -0.1), 2.5);
}

TEST(MarkerSize, OfWhatDoesNotSpreadIsTenMillimeters) {
  EXPECT_EQ(SizeFor({0, 0}), 10.0);
  EXPECT_EQ(SizeFor({-1, -1}), 10.0);
  EXPECT_EQ(SizeFor({1700}, 0.0), 10.0);
  EXPECT_EQ(ChooseMarkerSize(TRCDocument(), 1.0), 10.0);
}

TEST(MarkerSize, LeavesOutWhatIsNoNumber) {
  EXPECT_EQ(SizeFor({1700, kInfinity}), 25.0);
  EXPECT_EQ(SizeFor({kInfinity, kInfinity}), 10.0);
}

}  // namespace
