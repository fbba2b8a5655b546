#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "formats/htr/reader.h"
#include "formats/units/units.h"
#include "inspect/summary/subject_measure.h"
#include "tests/support/files.h"

namespace {

using orvane::DescribeSubject;
using orvane::HtrDocument;
using orvane::MeasureSubject;
using orvane::Point;
using orvane::SeemsToStandAlongY;
using orvane::SeemsToStandAlongZ;
using orvane::Subject;
using orvane::TRCDocument;
using orvane::TRCMarker;

// A body of eight markers, from a floor at 10 to 1710 along Y, 400 wide and deep, that walks along
// X, 20 a frame, as `placed` has its points.
void AddBody(const std::function<Point(const Point&)>& placed, TRCDocument& document,
             std::size_t frames = 100) {
  for (int number = 0; number < 8; ++number) {
    TRCMarker marker("marker " + std::to_string(number));
    for (std::size_t frame = 0; frame < frames; ++frame) {
      const Point point = placed({20.0 * static_cast<double>(frame) + 400.0 * (number % 2),
                                  10.0 + 1700.0 / 7 * number, 400.0 * (number / 2 % 2)});
      marker.AppendPosition(point[0], point[1], point[2]);
    }
    EXPECT_NE(document.AddMarker(std::move(marker)), nullptr);
  }
}

Point Upright(const Point& point) { return point; }
Point ZUp(const Point& point) { return {point[2], -point[0], point[1]}; }

Subject Measured(const TRCDocument& document) {
  const auto subject = MeasureSubject(document);
  EXPECT_TRUE(subject.has_value());
  return subject.value_or(Subject{});
}

Subject MeasuredBody(const std::function<Point(const Point&)>& placed, std::size_t frames = 100) {
  TRCDocument document;
  AddBody(placed, document, frames);
  return Measured(document);
}

TEST(Subject, HasItsHeightAndItsWay) {
  Subject subject = MeasuredBody(Upright);
  EXPECT_EQ(subject.points, 8U);
  EXPECT_DOUBLE_EQ(HeightOf(subject), 1700.0);
  EXPECT_DOUBLE_EQ(subject.way, 1980.0);
  EXPECT_EQ(DescribeSubject(subject, orvane::kMillimeters, 1.65),
            "1.70 m tall, moves 2.0 m, 1.6 s");
  EXPECT_EQ(DescribeSubject(subject, orvane::ParseCalibrationUnits("cm"), {}),
            "17.00 m tall, moves 19.8 m");
  subject.way = 3.0;
  EXPECT_EQ(DescribeSubject(subject, orvane::kMillimeters, 0.04),
            "1.70 m tall, moves 0.00 m, 0.04 s");
}

TEST(Subject, OfALongFileIsToldByAPartOfIt) {
  const Subject subject = MeasuredBody(Upright, 100'000);
  EXPECT_DOUBLE_EQ(HeightOf(subject), 1700.0);
  EXPECT_NEAR(subject.way, 2'000'000.0, 20'000.0);
}

TEST(Subject, IsMeasuredInTheFullestFrames) {
  TRCDocument document;
  AddBody(Upright, document, 3);
  TRCMarker high("high");
  high.AppendPosition(0, 2010, 0);
  high.AppendDropouts(2);
  ASSERT_NE(document.AddMarker(std::move(high)), nullptr);
  EXPECT_EQ(Measured(document).points, 9U);
  EXPECT_DOUBLE_EQ(HeightOf(Measured(document)), 2000.0);
}

TEST(Subject, IsNotThereWithoutPositions) {
  EXPECT_FALSE(MeasureSubject(TRCDocument()).has_value());
  EXPECT_FALSE(MeasureSubject(HtrDocument()).has_value());
}

TEST(Subject, SeemsToStandAlongZWhenItsFloorIsThere) {
  EXPECT_TRUE(SeemsToStandAlongZ(MeasuredBody(ZUp)));
  EXPECT_DOUBLE_EQ(HeightOf(MeasuredBody(ZUp)), 1700.0);
  EXPECT_EQ(orvane::DescribeHeights(MeasuredBody(ZUp).bounds, orvane::kMillimeters),
            "10 to 1710 mm");
  EXPECT_EQ(orvane::DescribeHeights(MeasuredBody(ZUp).bounds, orvane::ParseCalibrationUnits("m")),
            "10.00 to 1710.00 m");
}

TEST(Subject, DoesNotSeemToStandAlongZOtherwise) {
  struct Other {
    const char* what;
    Point (*placed)(const Point& point);
  };
  const Other kOthers[] = {
      {"upright", Upright},
      {"lying on a floor",
       [](const Point& point) -> Point {
         return {point[0], point[2], point[1]};
       }},
      {"swimming along Z",
       [](const Point& point) -> Point {
         return {point[2], -900.0, point[1] + point[0]};
       }},
      {"in the air",
       [](const Point& point) -> Point {
         return {point[2], -point[0], point[1] + 900};
       }},
      {"with arms stretched",
       [](const Point& point) -> Point {
         return {point[2] * 4, -point[0], point[1]};
       }},
  };
  for (const Other& other : kOthers) {
    EXPECT_FALSE(SeemsToStandAlongZ(MeasuredBody(other.placed))) << other.what;
  }
  Subject prop = MeasuredBody(ZUp);
  prop.points = 7;
  EXPECT_FALSE(SeemsToStandAlongZ(prop)) << "a prop";
}

TEST(Subject, SeemsToStandAlongYByTheSameSigns) {
  const auto walks_along_z = [](const Point& point) { return Point{point[2], point[1], point[0]}; };
  EXPECT_TRUE(SeemsToStandAlongY(MeasuredBody(walks_along_z)));
  EXPECT_FALSE(SeemsToStandAlongY(MeasuredBody(ZUp)));
  Subject prop = MeasuredBody(walks_along_z);
  prop.points = 7;
  EXPECT_FALSE(SeemsToStandAlongY(prop)) << "a prop";
}

// Each marker is seen in 30 frames of the 100, in which it gets 580 far.
TEST(Subject, WhosePointsComeAndGoMovesAsFarAsTheyDoTogether) {
  TRCDocument document;
  for (int number = 0; number < 8; ++number) {
    TRCMarker marker("marker " + std::to_string(number));
    for (int frame = 0; frame < 100; ++frame) {
      if (frame >= 10 * number && frame < 10 * number + 30) {
        marker.AppendPosition(20.0 * frame, 200.0 * number, 0.0);
      } else {
        marker.AppendDropout();
      }
    }
    EXPECT_NE(document.AddMarker(std::move(marker)), nullptr);
  }
  EXPECT_DOUBLE_EQ(Measured(document).way, 1980.0);
}

TEST(Subject, OfTheExamplesStandsUpright) {
  HtrDocument motion;
  ASSERT_EQ(orvane::ReadHtrFile(motion, ORVANE_SOURCE_DIR "/examples/walk.htr", true), "");
  TRCDocument markers;
  ASSERT_EQ(markers.Read(ORVANE_SOURCE_DIR "/examples/walk.trc", false), "");
  const auto joints = MeasureSubject(motion);
  ASSERT_TRUE(joints.has_value());
  EXPECT_EQ(DescribeSubject(*joints, orvane::kMillimeters, 2.0), "1.50 m tall, moves 2.4 m, 2.0 s");
  EXPECT_FALSE(SeemsToStandAlongZ(*joints));
  EXPECT_EQ(DescribeSubject(Measured(markers), orvane::kMillimeters, 2.0),
            "1.64 m tall, moves 2.4 m, 2.0 s");
  EXPECT_FALSE(SeemsToStandAlongZ(Measured(markers)));
}

}  // namespace
