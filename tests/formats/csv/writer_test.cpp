#include "formats/csv/writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "formats/text/numbers.h"
#include "tests/formats/edit/small_documents.h"

namespace {

using orvane::CsvLayout;
using orvane::CsvManner;
using orvane::CsvRotations;
using orvane::CsvSpace;
using orvane::HtrDocument;
using orvane::kRadiansPerDegree;
using orvane::TRCDocument;
using orvane::Vector3;
using testing::ElementsAre;

template <typename Document>
std::vector<std::string> Lines(const Document& document, const CsvManner& manner) {
  std::string bytes;
  PrintCsv(
      document, [&bytes](std::string_view piece) { bytes += piece; }, manner);
  std::vector<std::string> lines;
  std::istringstream text(bytes);
  for (std::string line; std::getline(text, line);) {
    EXPECT_TRUE(line.ends_with('\r')) << line;
    lines.push_back(line.substr(0, line.size() - 1));
  }
  return lines;
}

std::vector<double> NumbersIn(const std::string& line) {
  std::vector<double> numbers;
  std::istringstream text(line);
  for (std::string cell; std::getline(text, cell, ',');) {
    numbers.push_back(orvane::ParseDouble(cell));
  }
  return numbers;
}

void FillTwoMarkers(TRCDocument& document) {
  document.SetUnits(1);
  document.SetFirstFrame(101);
  orvane::TRCMarker* const plain = document.AddMarker(orvane::TRCMarker("A"));
  plain->AppendPosition(1, 2.5, -0.1);
  plain->AppendPosition(1e-7, 2, 3);
  orvane::TRCMarker* const odd = document.AddMarker(orvane::TRCMarker("the \"left\", one"));
  odd->AppendDropout();
  odd->AppendPosition(4, 5, 6);
}

TEST(CsvWriter, WritesARowAFrameWithEmptyCellsInGaps) {
  TRCDocument document;
  FillTwoMarkers(document);
  CsvManner manner;
  manner.frames_per_second = 59.94;
  EXPECT_THAT(Lines(document, manner),
              ElementsAre("frame,time,A.x,A.y,A.z,\"the \"\"left\"\", one.x\",\"the \"\"left\"\", "
                          "one.y\",\"the \"\"left\"\", one.z\"",
                          ",s,cm,cm,cm,cm,cm,cm", "101,0.000000,1,2.5,-0.1,,,",
                          "102,0.016683,1e-07,2,3,4,5,6"));
}

TEST(CsvWriter, WritesARowAMarkerInTheLongLayout) {
  TRCDocument document;
  FillTwoMarkers(document);
  CsvManner manner;
  manner.layout = CsvLayout::kLong;
  manner.numbers = orvane::NumberForm::Decimals(1);
  EXPECT_THAT(Lines(document, manner),
              ElementsAre("frame,time,marker,x,y,z", ",s,,cm,cm,cm", "101,,A,1.0,2.5,-0.1",
                          "101,,\"the \"\"left\"\", one\",,,", "102,,A,0.0,2.0,3.0",
                          "102,,\"the \"\"left\"\", one\",4.0,5.0,6.0"));
}

// Hips that turn by 90 degrees about Z, and a spine 5 above them that turns by 45 about its own Z.
void FillTwoSegments(HtrDocument& document) {
  orvane::HtrSegment& hips = test::AddSegment(document, "Hips", nullptr);
  hips.SetBaseTranslation(1, 2, 3);
  hips.AddFrame({10, 0, 0}, Vector3{0, 0, 90 * kRadiansPerDegree}, 1);
  hips.AddFrame({20, 0, 0}, Vector3{0, 0, 0}, 1);
  orvane::HtrSegment& spine = test::AddSegment(document, "Spine", &hips);
  spine.SetBaseTranslation(0, 5, 0);
  spine.AddFrame({}, Vector3{0, 0, 45 * kRadiansPerDegree}, 1);
}

TEST(CsvWriter, TellsWhereSegmentsAreInTheWorld) {
  HtrDocument document;
  FillTwoSegments(document);
  const auto lines = Lines(document, {});
  EXPECT_EQ(lines[0],
            "frame,time,Hips.x,Hips.y,Hips.z,Hips.rx,Hips.ry,Hips.rz,"
            "Spine.x,Spine.y,Spine.z,Spine.rx,Spine.ry,Spine.rz");
  EXPECT_EQ(lines[1], ",s,mm,mm,mm,deg,deg,deg,mm,mm,mm,deg,deg,deg");
  const std::vector<double> wanted = {1, 0, 11, 2, 3, 0, 0, 90, 6, 2, 3, 0, 0, 135};
  EXPECT_THAT(NumbersIn(lines[2]), testing::Pointwise(testing::DoubleNear(1e-9), wanted));
  EXPECT_TRUE(lines[3].ends_with(",,,,,,"));  // the spine does not hold the second frame
}

TEST(CsvWriter, TellsWhereSegmentsAreAgainstTheirParents) {
  HtrDocument document;
  FillTwoSegments(document);
  document.SetRotationUnits(1);
  CsvManner manner;
  manner.space = CsvSpace::kParent;
  const auto lines = Lines(document, manner);
  EXPECT_EQ(lines[1], ",s,mm,mm,mm,rad,rad,rad,mm,mm,mm,rad,rad,rad");
  const double pi = 180 * kRadiansPerDegree;
  const std::vector<double> wanted = {1, 0, 11, 2, 3, 0, 0, pi / 2, 0, 5, 0, 0, 0, pi / 4};
  EXPECT_THAT(NumbersIn(lines[2]), testing::Pointwise(testing::DoubleNear(1e-9), wanted));
}

TEST(CsvWriter, TellsRotationsAsQuaternions) {
  HtrDocument document;
  FillTwoSegments(document);
  CsvManner manner;
  manner.rotations = CsvRotations::kQuaternion;
  manner.layout = CsvLayout::kLong;
  const auto lines = Lines(document, manner);
  EXPECT_EQ(lines[0], "frame,time,segment,x,y,z,qx,qy,qz,qw");
  EXPECT_EQ(lines[1], ",s,,mm,mm,mm,,,,");
  const std::vector<double> wanted = {
      1, 0, 0, 11, 2, 3, 0, 0, 0.7071067811865476, 0.7071067811865476};
  EXPECT_THAT(NumbersIn(lines[2]), testing::Pointwise(testing::DoubleNear(1e-9), wanted));
}

TEST(CsvWriter, HasNoPlaceInTheWorldForSegmentsInACircle) {
  HtrDocument document;
  FillTwoSegments(document);
  orvane::HtrSegment* const ring = document.AddSegment(orvane::HtrSegment("Ring"));
  ring->SetParent(ring);
  ring->AddFrame({1, 2, 3}, Vector3{}, 1);
  EXPECT_TRUE(Lines(document, {})[2].ends_with(",,,,,,"));
  CsvManner manner;
  manner.space = CsvSpace::kParent;
  EXPECT_TRUE(Lines(document, manner)[2].ends_with(",1,2,3,0,0,0"));
}

}  // namespace
