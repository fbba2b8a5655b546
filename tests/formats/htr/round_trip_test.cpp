#include <gtest/gtest.h>

#include <cstdint>
#include <random>
#include <string>
#include <string_view>

#include "formats/htr/document_checker.h"
#include "formats/htr/reader.h"
#include "formats/htr/writer.h"

namespace orvane {
namespace {

std::string Printed(const HtrDocument& document) {
  std::string bytes;
  PrintHtr(document, [&bytes](std::string_view piece) { bytes += piece; });
  return bytes;
}

// Documents with everything that a file can say, and frames missing or left over here and there.
class RandomDocument {
 public:
  explicit RandomDocument(std::uint64_t seed) : random_(seed) {}

  void Fill(HtrDocument& document) {
    document.SetCalibrationUnits(static_cast<std::uint32_t>(Below(6)));
    document.SetRotationUnits(static_cast<std::uint32_t>(Below(2)));
    document.SetDataFrameRate(static_cast<std::int32_t>(Below(240)));
    document.SetNumFrames(static_cast<std::uint32_t>(Below(6)));
    document.SetStartFrame(static_cast<std::int32_t>(Below(2000)) - 1000);
    document.SetScaleFactor(Number(10));
    document.SetWriteBoneScale(Below(4) != 0);
    document.SetNormalizeBoneScale(Below(2) == 0);
    const std::uint64_t count = 1 + Below(8);
    for (std::uint64_t index = 0; index < count; ++index) AddSegment(document, index);
  }

 private:
  std::uint64_t Below(std::uint64_t limit) { return random_() % limit; }

  double Number(double size) {
    if (Below(8) == 0) return Below(2) == 0 ? 0.0 : -0.0;
    return size * (static_cast<double>(random_() >> 11U) * 0x1p-52 - 1.0);
  }

  Vector3 Vector(double size) {
    const double x = Number(size);
    const double y = Number(size);
    return Vector3(x, y, Number(size));
  }

  void AddSegment(HtrDocument& document, std::uint64_t index) {
    HtrSegment segment("Segment" + std::to_string(index));
    segment.SetBaseTranslation(Number(1e4), Number(1e9), Number(1e-5));
    segment.SetBaseRotation(Number(4), Number(100), Number(1e-7));
    segment.SetBoneLength(Number(1e3));
    segment.SetScaleReferenceLength(0.5 + static_cast<double>(Below(100)));
    const std::uint64_t frames = Below(8);
    for (std::uint64_t frame = 0; frame < frames; ++frame) {
      segment.AddFrame(Vector(2e3), Vector(7), Number(3));
    }
    HtrSegment* stored = document.AddSegment(segment);
    if (index == 0 || Below(5) == 0) return;
    stored->SetParent(document.FindSegment("Segment" + std::to_string(Below(index))));
  }

  std::mt19937_64 random_;
};

TEST(HtrRoundTrip, WritesWhatItHasReadByteForByte) {
  for (std::uint64_t seed = 1; seed <= 500; ++seed) {
    HtrDocument document;
    RandomDocument(seed).Fill(document);
    const std::string written = Printed(document);
    HtrDocument again;
    ASSERT_EQ(ReadHtrBytes(again, written, true), "");
    ASSERT_EQ(FindFault(again), "");
    ASSERT_EQ(Printed(again), written) << "seed " << seed;
  }
}

TEST(HtrRoundTrip, KeepsWhatTheHeaderSays) {
  HtrDocument document;
  document.AddSegment(HtrSegment("Hips"));
  document.SetCalibrationUnits(3);
  document.SetRotationUnits(1);
  document.SetDataFrameRate(120);
  document.SetNumFrames(2);
  document.SetStartFrame(-5);
  document.SetScaleFactor(2.5);
  HtrDocument again;
  ASSERT_EQ(ReadHtrBytes(again, Printed(document), true), "");
  EXPECT_EQ(again.GetCalibrationUnits(), 3u);
  EXPECT_EQ(again.GetRotationUnits(), 1u);
  EXPECT_EQ(again.GetDataFrameRate(), 120);
  EXPECT_EQ(again.GetNumFrames(), 2u);
  EXPECT_EQ(again.GetStartFrame(), -5);
  EXPECT_EQ(again.GetScaleFactor(), 2.5);
}

TEST(HtrRoundTrip, EndsAtABoneAxisThatIsWrittenAndNotRead) {
  for (const std::uint32_t axis : {0u, 2u}) {
    HtrDocument document;
    document.AddSegment(HtrSegment("Hips"));
    document.SetBoneLengthAxis(axis);
    HtrDocument again;
    EXPECT_EQ(ReadHtrBytes(again, Printed(document), true),
              "The file does not have a compatible \"BoneLengthAxis\" header state");
  }
}

TEST(HtrRoundTrip, TurnsEveryAxisOfGravityIntoY) {
  HtrDocument document;
  document.AddSegment(HtrSegment("Hips"));
  document.SetGlobalAxisofGravity(0);
  HtrDocument again;
  ASSERT_EQ(ReadHtrBytes(again, Printed(document), true), "");
  EXPECT_EQ(again.GetGlobalAxisofGravity(), 1u);
}

}  // namespace
}  // namespace orvane
