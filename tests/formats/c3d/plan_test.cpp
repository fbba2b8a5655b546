#include "formats/c3d/plan.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

namespace {

using orvane::C3dLosses;
using orvane::C3dOptions;
using orvane::C3dPlan;
using orvane::C3dRefusal;
using orvane::PlanC3d;
using orvane::TRCDocument;
using orvane::TRCMarker;
using testing::IsEmpty;

C3dLosses LossesOf(const TRCDocument& document, const C3dOptions& options = {}) {
  const C3dPlan plan = PlanC3d(document, options);
  EXPECT_FALSE(plan.refusal.has_value());
  return plan.losses;
}

C3dLosses::Label LabelOf(const std::string& name) {
  TRCDocument document;
  document.AddMarker(TRCMarker(name));
  const C3dLosses losses = LossesOf(document);
  return losses.labels.empty() ? C3dLosses::Label{} : losses.labels.front();
}

TEST(C3dPlanTest, NothingIsLostOfPlainMarkers) {
  TRCDocument document;
  document.AddMarker(TRCMarker("Left heel"))->AppendPosition(1, -2.5, 1e6);
  const C3dLosses losses = LossesOf(document);
  EXPECT_THAT(losses.labels, IsEmpty());
  EXPECT_FALSE(losses.rounding.has_value());
  EXPECT_FALSE(losses.first_frame.has_value());
  EXPECT_FALSE(losses.is_beyond_header);
  EXPECT_FALSE(losses.is_rate_rounded);
  EXPECT_FALSE(losses.camera_rate.has_value());
  EXPECT_EQ(losses.disabled_markers, 0U);
}

TEST(C3dPlanTest, TellsTheCoordinateThatIsRoundedMost) {
  TRCDocument document;
  document.SetUnits(2);  // m
  TRCMarker* marker = document.AddMarker(TRCMarker("A"));
  marker->AppendPosition(0.1, 0, 0);
  marker->AppendDropout();
  marker->AppendPosition(0, 0, 16'777'217);  // the first whole number that is rounded
  const C3dLosses losses = LossesOf(document);
  ASSERT_TRUE(losses.rounding.has_value());
  EXPECT_EQ(losses.rounding->marker, marker);
  EXPECT_EQ(losses.rounding->frame, 2U);
  EXPECT_DOUBLE_EQ(losses.rounding->error_mm, 1000.0);
}

TEST(C3dPlanTest, NamesOf255BytesAreKeptAndLongerOnesCut) {
  EXPECT_EQ(LabelOf(std::string(255, 'x')).marker, nullptr);
  const C3dLosses::Label cut = LabelOf(std::string(256, 'x'));
  EXPECT_TRUE(cut.is_cut);
  EXPECT_EQ(cut.label, std::string(255, 'x'));
}

TEST(C3dPlanTest, ACutParsNoCharacterOfUtf8) {
  EXPECT_EQ(LabelOf(std::string(254, 'x') + "\xC3\xBC").label, std::string(254, 'x'));
  EXPECT_EQ(LabelOf(std::string(253, 'x') + "\xC3\xBC"
                                            "x")
                .label.size(),
            255U);
  EXPECT_EQ(LabelOf(std::string(252, 'x') + "\xF0\x9F\x98\x80").label, std::string(252, 'x'));
  // No UTF-8 at all.
  EXPECT_EQ(LabelOf(std::string(300, '\x80')).label.size(), 255U);
}

TEST(C3dPlanTest, TellsNamesThatReadersMayTakeForOthers) {
  EXPECT_TRUE(LabelOf("A ").has_blanks_at_end);
  EXPECT_TRUE(LabelOf("\xC3\xBC").is_beyond_ascii);
  EXPECT_FALSE(LabelOf("\xC3\xBC").is_cut);
}

TEST(C3dPlanTest, FramesBegin1WhereTheirNumberIsBelow) {
  for (const std::int32_t first : {0, -5, std::numeric_limits<std::int32_t>::min()}) {
    TRCDocument document;
    document.SetFirstFrame(first);
    EXPECT_EQ(LossesOf(document).first_frame, first);
    EXPECT_EQ(PlanC3d(document, {}).first_frame, 1U);
  }
}

TEST(C3dPlanTest, TellsFramesBeyondTheHeader) {
  TRCDocument document;
  TRCMarker* marker = document.AddMarker(TRCMarker("A"));
  marker->AppendDropouts(2);
  document.SetFirstFrame(65'534);
  EXPECT_FALSE(LossesOf(document).is_beyond_header);
  document.SetFirstFrame(65'535);
  EXPECT_TRUE(LossesOf(document).is_beyond_header);
}

TEST(C3dPlanTest, FramesAreAsManyAsTheMarkersHave) {
  TRCDocument document;
  document.SetNumFrames(std::numeric_limits<std::int32_t>::max());
  document.AddMarker(TRCMarker("A"))->AppendDropouts(3);
  document.AddMarker(TRCMarker("B"))->AppendPosition(0, 0, 0);
  EXPECT_EQ(PlanC3d(document, {}).frame_count, 3U);
}

TEST(C3dPlanTest, TellsRates) {
  TRCDocument document;
  document.SetCameraRate(60);
  EXPECT_FALSE(LossesOf(document).camera_rate.has_value());
  document.SetCameraRate(240);
  EXPECT_EQ(LossesOf(document).camera_rate, 240);
  C3dOptions options;
  options.rate = C3dOptions::Rate{59.94, "59.94"};
  EXPECT_TRUE(LossesOf(document, options).is_rate_rounded);
  options.rate = C3dOptions::Rate{12.5, "12.5"};
  EXPECT_FALSE(LossesOf(document, options).is_rate_rounded);
}

TEST(C3dPlanTest, TellsDisabledMarkers) {
  TRCDocument document;
  document.AddMarker(TRCMarker("A"))->SetEnabled(false);
  EXPECT_EQ(LossesOf(document).disabled_markers, 1U);
}

TEST(C3dPlanTest, RefusesCoordinatesThatAreNotFiniteInSinglePrecision) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  for (const double number : {kInfinity, -kInfinity, std::nan(""), 1e39, -1e39}) {
    for (int axis = 0; axis < 3; ++axis) {
      TRCDocument document;
      document.AddMarker(TRCMarker("A"))->AppendPosition(0, 0, 0);
      TRCMarker* marker = document.AddMarker(TRCMarker("B"));
      marker->AppendDropout();
      marker->AppendPosition(axis == 0 ? number : 0, axis == 1 ? number : 0,
                             axis == 2 ? number : 0);
      const C3dPlan plan = PlanC3d(document, {});
      ASSERT_TRUE(plan.refusal.has_value()) << number;
      EXPECT_EQ(plan.refusal->reason, C3dRefusal::Reason::kNotFinite);
      EXPECT_EQ(plan.refusal->marker, marker);
      EXPECT_EQ(plan.refusal->frame, 1U);
    }
  }
}

TEST(C3dPlanTest, RefusesRatesThatAreNone) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  TRCDocument document;
  for (const double rate : {0.0, -1.0, kInfinity, std::nan(""), 1e39, 1e-50}) {
    C3dOptions options;
    options.rate = C3dOptions::Rate{rate, ""};
    ASSERT_TRUE(PlanC3d(document, options).refusal.has_value()) << rate;
    EXPECT_EQ(PlanC3d(document, options).refusal->reason, C3dRefusal::Reason::kRate);
  }
  document.SetDataRate(0);
  EXPECT_EQ(PlanC3d(document, {}).refusal.value().reason, C3dRefusal::Reason::kRate);
}

TEST(C3dPlanTest, RefusesMoreMarkersThanTheHeaderCounts) {
  TRCDocument document;
  for (int marker = 0; marker < 65'536; ++marker) {
    document.AddMarker(TRCMarker(std::to_string(marker)));
  }
  const C3dRefusal refusal = PlanC3d(document, {}).refusal.value();
  EXPECT_EQ(refusal.reason, C3dRefusal::Reason::kTooManyMarkers);
  EXPECT_EQ(refusal.count, 65'536U);
  EXPECT_EQ(refusal.most, 65'535U);
}

TEST(C3dPlanTest, RefusesNamesThatTheParametersCannotHold) {
  TRCDocument document;
  for (int marker = 1000; marker < 1500; ++marker) {
    document.AddMarker(TRCMarker(std::to_string(marker) + std::string(251, 'x')));
  }
  EXPECT_FALSE(PlanC3d(document, {}).refusal.has_value());
  for (int marker = 1500; marker < 1520; ++marker) {
    document.AddMarker(TRCMarker(std::to_string(marker) + std::string(251, 'x')));
  }
  const C3dRefusal refusal = PlanC3d(document, {}).refusal.value();
  EXPECT_EQ(refusal.reason, C3dRefusal::Reason::kNamesTooLong);
  EXPECT_GT(refusal.count, 130'560U);
  EXPECT_EQ(refusal.most, 130'560U);
}

TEST(C3dPlanTest, RefusesFramesNumberedBeyond32Bits) {
  TRCDocument document;
  document.AddMarker(TRCMarker("A"))->AppendDropouts((std::size_t{1} << 31U) + 1);
  document.SetFirstFrame(std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(PlanC3d(document, {}).refusal.value().reason, C3dRefusal::Reason::kTooManyFrames);
}

}  // namespace
