#include "inspect/check/trc_samples.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "inspect/check/trc_check.h"
#include "inspect/check/trc_look_over.h"
#include "tests/support/trc_text.h"

namespace {

using orvane::TRCDocument;
using test::TrcText;

orvane::LookedOverTrc LookOver(const TrcText& text, TRCDocument& document) {
  const std::string bytes = text.Text();
  const auto open = [&bytes] { return std::make_unique<orvane::MemorySource>(bytes); };
  return orvane::LookOverTrc("walk.trc", open, document);
}

// The second marker is far away in three frames in which the first has no position.
TrcText StandIns() {
  return {.markers = {"LFHD", "RFHD"},
          .frames = {{"1\t2\t3", "4\t5\t6"},
                     {"", "9999\t4\t5"},
                     {"", "9999\t4\t5"},
                     {"", "9999\t4\t5"},
                     {"1\t2\t3", "7\t8\t9"}}};
}

TEST(TrcSamples, KeepsWhatTheSamplesComeToInTheirPlace) {
  TRCDocument document;
  const orvane::LookedOverTrc looked = LookOver(StandIns(), document);
  EXPECT_EQ(document.MarkerAt(0)->SampleCount(), 0U);
  EXPECT_EQ(looked.samples.Frames(), 5U);
  const orvane::trc::MarkerSamples& first = looked.samples.Markers()[0];
  EXPECT_EQ(first.positions, 2U);
  ASSERT_EQ(first.gaps.size(), 1U);
  EXPECT_EQ(first.gaps[0].begin, 1U);
  EXPECT_EQ(first.gaps[0].end, 4U);
  const orvane::trc::PositionExtremes& second = looked.samples.Markers()[1].extremes;
  EXPECT_EQ(second.farthest, 9999.0);
  EXPECT_EQ(second.first_farthest, 1U);
  EXPECT_EQ(second.times_at_farthest, 3U);
  EXPECT_EQ(second.next_farthest, 9.0);
}

// What moves is looked at in every second frame of 400: each other one has its markers elsewhere.
TEST(TrcSamples, LooksAtWhatMovesInTheFramesThatAreThere) {
  TrcText text;
  text.frames.resize(400);
  for (int marker = 0; marker < 8; ++marker) {
    text.markers.push_back("M" + std::to_string(marker));
    const std::string height = std::to_string(50 + 200 * marker);
    for (std::size_t frame = 0; frame < text.frames.size(); ++frame) {
      text.frames[frame].push_back("0\t900\t" + (frame % 2 == 0 ? height : "7"));
    }
  }
  const auto codes_with = [&text](int announced) {
    text.frame_count = announced;
    TRCDocument document;
    std::vector<std::string> codes;
    const orvane::LookedOverTrc looked = LookOver(text, document);
    for (const auto& [code, total] : looked.checked.findings.Totals()) {
      codes.emplace_back(code);
    }
    return codes;
  };
  EXPECT_THAT(codes_with(400), testing::ElementsAre("trc-up-axis"));
  EXPECT_THAT(codes_with(100), testing::ElementsAre("trc-frame-count", "trc-up-axis"));
  EXPECT_THAT(codes_with(900), testing::ElementsAre("trc-frame-count", "trc-up-axis"));
}

// In lines that end before the last markers, too, and from the first frame on.
TEST(TrcSamples, FindsTheGapsThatTheDocumentHas) {
  const TrcText text{.markers = {"LFHD", "RFHD", "LBHD"},
                     .frames = {{"", "4\t5\t6"},
                                {"1\t2\t3"},
                                {},
                                {"1\t2\t3", "", "7\t8\t9"},
                                {"0\t0\t0", "4\t5\t6"},
                                {"0\t2\t3", "4\t5\t6", "7\t8\t9"},
                                {"", "", "7\t8\t9"},
                                {"1\t2\t3", "4\t5\t6"}}};
  TRCDocument document;
  const orvane::LookedOverTrc looked = LookOver(text, document);
  TRCDocument kept;
  ASSERT_EQ(kept.ReadBytes(text.Text(), false, nullptr), "");
  const auto gaps = kept.Gaps();
  ASSERT_EQ(looked.samples.Markers().size(), gaps.size());
  for (std::size_t marker = 0; marker < gaps.size(); ++marker) {
    const auto& found = looked.samples.Markers()[marker].gaps;
    ASSERT_EQ(found.size(), gaps[marker].size()) << marker;
    for (std::size_t gap = 0; gap < found.size(); ++gap) {
      EXPECT_EQ(found[gap].begin, gaps[marker][gap].begin) << marker;
      EXPECT_EQ(found[gap].end, gaps[marker][gap].end) << marker;
    }
  }
  EXPECT_EQ(looked.samples.Markers()[0].positions, 5U);
  EXPECT_EQ(looked.samples.Markers()[1].positions, 4U);
  EXPECT_EQ(looked.samples.Markers()[2].positions, 3U);
}

}  // namespace
