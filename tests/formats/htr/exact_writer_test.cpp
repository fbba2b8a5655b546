#include <gtest/gtest.h>

#include <array>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>

#include "formats/htr/degrees.h"
#include "formats/htr/reader.h"
#include "formats/htr/writer.h"
#include "tests/support/document_bits.h"
#include "tests/support/files.h"

namespace orvane {
namespace {

using test::BitsOf;

std::string Exact(const HtrDocument& document) {
  std::string bytes;
  HtrManner manner;
  manner.numbers = NumberForm::Shortest();
  manner.gravity_axis = document.GetGlobalAxisofGravity();
  PrintHtr(
      document, [&bytes](std::string_view piece) { bytes += piece; }, manner);
  return bytes;
}

double Number(std::mt19937_64& random, double size) {
  if (random() % 8 == 0) return random() % 2 == 0 ? 0.0 : -0.0;
  return size * (static_cast<double>(random() >> 11U) * 0x1p-52 - 1.0);
}

// Angles are some that a file can say.
void Fill(HtrDocument& document, std::mt19937_64& random) {
  document.SetRotationUnits(static_cast<std::uint32_t>(random() % 2));
  document.SetCalibrationUnits(static_cast<std::uint32_t>(random() % 6));
  document.SetNumFrames(static_cast<std::uint32_t>(1 + random() % 5));
  document.SetScaleFactor(Number(random, 10));
  const bool is_in_degrees = document.GetRotationUnits() == 0;
  const auto angle = [&] {
    return is_in_degrees ? Number(random, 400) * 0.017453292519943295 : Number(random, 7);
  };
  const std::size_t count = 1 + random() % 5;
  for (std::size_t index = 0; index < count; ++index) {
    HtrSegment segment("Segment" + std::to_string(index));
    segment.SetIsRoot(index == 0);
    segment.SetBaseTranslation(Number(random, 1e4), Number(random, 1e9), Number(random, 1e-5));
    segment.SetBaseRotation(angle(), angle(), angle());
    segment.SetBoneLength(Number(random, 1e3));
    for (std::uint32_t frame = 0; frame < document.GetNumFrames(); ++frame) {
      const Vector3 angles(angle(), angle(), angle());
      segment.AddFrame({Number(random, 1e3), Number(random, 1), Number(random, 1e-9)}, angles,
                       Number(random, 3));
    }
    HtrSegment* const stored = document.AddSegment(segment);
    if (index > 0) stored->SetParent(&document.segments()[random() % index]);
  }
}

TEST(ExactHtrWriter, BringsBackEveryNumberToTheBit) {
  std::mt19937_64 random(1);
  for (int count = 0; count < 500; ++count) {
    HtrDocument document;
    Fill(document, random);
    const std::string written = Exact(document);
    HtrDocument again;
    ASSERT_EQ(ReadHtrBytes(again, written, true), "");
    ASSERT_EQ(BitsOf(again), BitsOf(document)) << written;
    ASSERT_EQ(Exact(again), written);
  }
}

TEST(ExactHtrWriter, BringsBackEveryFixtureAndExample) {
  for (const char* const folder : {"/tests/data/htr", "/examples"}) {
    for (const auto& file :
         std::filesystem::directory_iterator(ORVANE_SOURCE_DIR + std::string(folder))) {
      if (file.path().extension() != ".htr") continue;
      HtrDocument document;
      if (!ReadHtrBytes(document, test::ReadFile(file.path().string()), true).empty()) continue;
      const std::string written = Exact(document);
      HtrDocument again;
      ASSERT_EQ(ReadHtrBytes(again, written, true), "") << file.path();
      EXPECT_EQ(Exact(again), written) << file.path();
    }
  }
}

TEST(ExactHtrWriter, SaysAnAngleInTheFewestDigits) {
  for (const double degrees : {12.34, -30.0, 359.999, 0.1, 90.0, 1e-3, 179.123456}) {
    EXPECT_EQ(DegreesReadAs(degrees * 0.017453292519943295), degrees);
  }
}

TEST(ExactHtrWriter, SaysTheNearestOfAnAngleThatNoDegreesStandFor) {
  std::mt19937_64 random(3);
  for (int count = 0; count < 10000; ++count) {
    const double radians = Number(random, 7);
    const double degrees = DegreesReadAs(radians);
    const double again = degrees * 0.017453292519943295;
    EXPECT_NEAR(again, radians, 2e-15);
    EXPECT_EQ(DegreesReadAs(again), degrees);
  }
}

TEST(ExactHtrWriter, TakesDecimalsARateAndAnAxis) {
  HtrDocument document;
  document.AddSegment(HtrSegment("Hips"))->SetBaseTranslation(1.23456, 0, 0);
  document.SetNumFrames(1);
  HtrManner manner;
  manner.numbers = NumberForm::Decimals(2);
  manner.frame_rate = "59.94";
  manner.gravity_axis = 2;
  std::string bytes;
  PrintHtr(
      document, [&bytes](std::string_view piece) { bytes += piece; }, manner);
  EXPECT_NE(bytes.find("\r\nDataFrameRate 59.94\r\n"), std::string::npos);
  EXPECT_NE(bytes.find("\r\nGlobalAxisofGravity Z\r\n"), std::string::npos);
  EXPECT_NE(bytes.find("\r\nHips\t1.23\t0.00\t0.00\t0.00\t0.00\t0.00\t0.00\r\n"),
            std::string::npos);
}

}  // namespace
}  // namespace orvane
