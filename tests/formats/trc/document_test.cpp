#include "formats/trc/document.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "tests/formats/trc/samples.h"

namespace orvane {
namespace {

using test::Sample;
using test::SamplesOf;
using ::testing::ElementsAre;

Sample At(double x, double y, double z) { return std::array<double, 3>{x, y, z}; }

TRCMarker MarkerAtOne(const std::string& name) {
  TRCMarker marker(name);
  marker.AppendPosition(1, 1, 1);
  marker.AppendDropout();
  return marker;
}

TEST(TRCDocument, StartsWithItsDefaults) {
  const TRCDocument document;
  EXPECT_EQ(document.Units(), 0);
  EXPECT_EQ(document.DataRate(), 60);
  EXPECT_EQ(document.CameraRate(), 0);
  EXPECT_EQ(document.NumFrames(), 0);
  EXPECT_EQ(document.FirstFrame(), 1);
  EXPECT_EQ(document.MarkerCount(), 0u);
  EXPECT_EQ(document.MarkerAt(0), nullptr);
}

TEST(TRCDocument, ResetsAllButTheCameraRate) {
  TRCDocument document;
  document.SetUnits(2);
  document.SetDataRate(100);
  document.SetCameraRate(200);
  document.SetNumFrames(7);
  document.SetFirstFrame(8);
  document.AddMarker(TRCMarker("a"));
  document.Reset();
  EXPECT_EQ(document.Units(), 0);
  EXPECT_EQ(document.DataRate(), 60);
  EXPECT_EQ(document.CameraRate(), 200);
  EXPECT_EQ(document.NumFrames(), 0);
  EXPECT_EQ(document.FirstFrame(), 1);
  EXPECT_EQ(document.MarkerCount(), 0u);
  EXPECT_NE(document.AddMarker(TRCMarker("a")), nullptr);
}

TEST(TRCDocument, CopiesWhatItIsGivenAndKeepsTheAddress) {
  TRCDocument document;
  const TRCMarker* stored = document.AddMarker(MarkerAtOne("a"));
  ASSERT_NE(stored, nullptr);
  for (int index = 0; index < 1000; ++index) document.AddMarker(TRCMarker(std::to_string(index)));
  EXPECT_EQ(document.MarkerAt(0), stored);
  EXPECT_EQ(stored->Name(), "a");
  EXPECT_EQ(stored->SampleCount(), 2u);
  EXPECT_EQ(document.MarkerCount(), 1001u);
  EXPECT_EQ(document.MarkerAt(1000)->Name(), "999");
  EXPECT_EQ(document.MarkerAt(1001), nullptr);
}

TEST(TRCDocument, TakesEachNameOnceAndCaseCounts) {
  TRCDocument document;
  ASSERT_NE(document.AddMarker(TRCMarker("Hip")), nullptr);
  EXPECT_EQ(document.AddMarker(TRCMarker("Hip")), nullptr);
  EXPECT_NE(document.AddMarker(TRCMarker("hip")), nullptr);
  EXPECT_NE(document.AddMarker(TRCMarker("")), nullptr);
  EXPECT_EQ(document.AddMarker(TRCMarker("")), nullptr);
  EXPECT_EQ(document.MarkerCount(), 3u);
}

TEST(TRCDocument, KnowsItsMarkersByTheirNewNames) {
  TRCDocument document;
  document.AddMarker(TRCMarker("a"))->SetName("b");
  EXPECT_EQ(document.AddMarker(TRCMarker("b")), nullptr);
  EXPECT_NE(document.AddMarker(TRCMarker("a")), nullptr);
}

struct Conversion {
  std::int32_t from;
  std::int32_t to;
  double factor;
};

class TRCUnits : public ::testing::TestWithParam<Conversion> {};

TEST_P(TRCUnits, ScaleEverySampleAndMakeDropoutsPresent) {
  const auto [from, to, factor] = GetParam();
  TRCDocument document;
  document.SetUnits(from);
  document.AddMarker(MarkerAtOne("a"));
  document.AddMarker(MarkerAtOne("b"));
  document.ConvertUnits(to);
  EXPECT_EQ(document.Units(), to);
  for (const TRCMarker& marker : document.markers()) {
    EXPECT_THAT(SamplesOf(marker), ElementsAre(At(factor, factor, factor), At(0, 0, 0)));
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, TRCUnits,
    ::testing::Values(Conversion{1, 0, 10.0}, Conversion{2, 0, 1000.0}, Conversion{3, 0, 25.4},
                      Conversion{4, 0, 2.1166666666666663}, Conversion{5, 0, 0.7055555555555555},
                      Conversion{0, 1, 0.1}, Conversion{0, 2, 0.001},
                      Conversion{0, 3, 0.0393700787}, Conversion{0, 4, 0.47244094439999995},
                      Conversion{0, 5, 1.4173228331999999},
                      Conversion{2, 3, 1000.0 * 0.0393700787}));

TEST(TRCDocument, LeavesEverythingAsItIsWhenTheUnitIsTheSame) {
  TRCDocument document;
  document.SetUnits(1);
  document.AddMarker(MarkerAtOne("a"));
  document.ConvertUnits(1);
  EXPECT_THAT(SamplesOf(*document.MarkerAt(0)), ElementsAre(At(1, 1, 1), Sample()));
}

TEST(TRCDocument, ScalesAllMarkers) {
  TRCDocument document;
  document.AddMarker(MarkerAtOne("a"));
  document.AddMarker(MarkerAtOne("b"));
  document.Scale(-2.5);
  EXPECT_EQ(document.Units(), 0);
  for (const TRCMarker& marker : document.markers()) {
    EXPECT_EQ(SamplesOf(marker).front(), At(-2.5, -2.5, -2.5));
    EXPECT_TRUE(SamplesOf(marker).back().has_value());
  }
}

}  // namespace
}  // namespace orvane
