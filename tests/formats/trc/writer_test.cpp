#include "formats/trc/writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <random>
#include <string>
#include <string_view>

#include "tests/support/document_bits.h"
#include "tests/support/files.h"

namespace {

using orvane::PrintTrc;
using orvane::TRCDocument;
using orvane::TrcManner;
using orvane::TRCMarker;
using test::BitsOf;
using testing::HasSubstr;

struct Printed {
  std::string bytes;
  std::string error;
};

Printed Print(const TRCDocument& document, const TrcManner& manner = {}) {
  Printed printed;
  printed.error = PrintTrc(
      document, [&printed](std::string_view piece) { printed.bytes += piece; }, manner);
  return printed;
}

double Number(std::mt19937_64& random) {
  if (random() % 8 == 0) return random() % 2 == 0 ? 0.0 : -0.0;
  const double size = random() % 2 == 0 ? 3000.0 : 1e-12;
  return size * (static_cast<double>(random() >> 11U) * 0x1p-52 - 1.0);
}

void Fill(TRCDocument& document, std::mt19937_64& random) {
  const std::size_t frames = 1 + random() % 6;
  document.SetNumFrames(static_cast<int>(frames));
  document.SetUnits(static_cast<int>(random() % 6));
  document.SetFirstFrame(static_cast<int>(random() % 2000) - 1000);
  document.SetDataRate(static_cast<int>(random() % 300));
  document.SetCameraRate(static_cast<int>(random() % 300));
  const std::size_t markers = 1 + random() % 5;
  for (std::size_t index = 0; index < markers; ++index) {
    TRCMarker marker(index == 2 ? "with blank" : "M" + std::to_string(index));
    for (std::size_t frame = 0; frame < frames; ++frame) {
      if (random() % 3 == 0) {
        marker.AppendDropout();
      } else {
        const double x = Number(random);
        const double y = Number(random);
        marker.AppendPosition(x, y, Number(random));
      }
    }
    document.AddMarker(marker);
  }
}

TEST(TrcWriter, BringsBackEveryNumberAndGapToTheBit) {
  std::mt19937_64 random(1);
  for (int count = 0; count < 500; ++count) {
    TRCDocument document;
    Fill(document, random);
    const Printed printed = Print(document);
    ASSERT_EQ(printed.error, "");
    TRCDocument again;
    ASSERT_EQ(again.ReadBytes(printed.bytes, false), "");
    ASSERT_EQ(BitsOf(again), BitsOf(document)) << printed.bytes;
    ASSERT_EQ(Print(again).bytes, printed.bytes);
  }
}

TEST(TrcWriter, BringsBackTheExample) {
  TRCDocument document;
  ASSERT_EQ(document.ReadBytes(test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.trc"), false), "");
  TRCDocument again;
  ASSERT_EQ(again.ReadBytes(Print(document).bytes, false), "");
  EXPECT_EQ(BitsOf(again), BitsOf(document));
}

TEST(TrcWriter, WritesTheWholeFile) {
  TRCDocument document;
  document.SetUnits(1);
  document.SetFirstFrame(101);
  document.SetDataRate(59);
  document.SetCameraRate(120);
  TRCMarker* const left = document.AddMarker(TRCMarker("LFHD"));
  left->AppendPosition(10, 170, 5.25);
  left->AppendDropout();
  TRCMarker* const right = document.AddMarker(TRCMarker("RFHD"));
  right->AppendDropout();
  right->AppendPosition(-10, 170, 0.1);
  TrcManner manner;
  manner.data_rate = "59.94";
  manner.name = "head.trc";
  EXPECT_EQ(Print(document, manner).bytes,
            "PathFileType\t4\t(X/Y/Z)\thead.trc\r\n"
            "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\tOrigDataRate\tOrigDataStartFrame\t"
            "OrigNumFrames\r\n"
            "59.94\t120\t2\t2\tcm\t59.94\t101\t2\r\n"
            "Frame#\tTime\tLFHD\t\t\tRFHD\t\t\t\r\n"
            "\t\tX1\tY1\tZ1\tX2\tY2\tZ2\t\r\n"
            "\r\n"
            "101\t0.000000\t10\t170\t5.25\t\t\t\r\n"
            "102\t0.016683\t\t\t\t-10\t170\t0.1\r\n");
}

TEST(TrcWriter, LeavesOutMarkersThatAreNotEnabled) {
  TRCDocument document;
  document.AddMarker(TRCMarker("A"))->AppendPosition(1, 2, 3);
  TRCMarker* const other = document.AddMarker(TRCMarker("B"));
  other->AppendPosition(4, 5, 6);
  other->SetEnabled(false);
  EXPECT_THAT(Print(document).bytes, HasSubstr("Frame#\tTime\tA\t\t\t\r\n"));
}

TEST(TrcWriter, TakesDecimalsAndNoTimeWithoutARate) {
  TRCDocument document;
  document.SetDataRate(0);
  TRCMarker* const marker = document.AddMarker(TRCMarker("A"));
  marker->AppendPosition(1.23456, 2, 3);
  marker->AppendPosition(1, 2, 3);
  TrcManner manner;
  manner.numbers = orvane::NumberForm::Decimals(2);
  EXPECT_THAT(Print(document, manner).bytes,
              HasSubstr("\r\n1\t0.000000\t1.23\t2.00\t3.00\r\n2\t0.000000\t1.00\t2.00\t3.00\r\n"));
}

TEST(TrcWriter, SaysWhatCouldNotBeReadBack) {
  TRCDocument empty;
  EXPECT_EQ(Print(empty).error, "there is no marker to write");
  for (const char* const name : {"a\tb", "a\nb"}) {
    TRCDocument document;
    document.AddMarker(TRCMarker(name));
    EXPECT_EQ(Print(document).error, "a marker's name holds a tab, a line end or a NUL");
  }
  TRCDocument unnamed;
  unnamed.AddMarker(TRCMarker("Unnamed1"));
  EXPECT_EQ(Print(unnamed).error,
            "the marker Unnamed1 would not be read: its name begins with Unnamed");
  TRCDocument twice;
  twice.AddMarker(TRCMarker("A"));
  twice.AddMarker(TRCMarker("B"))->SetName("A");
  EXPECT_EQ(Print(twice).error, "two markers have the name A");
  TRCDocument wide;
  for (int index = 0; index < 600; ++index) {
    wide.AddMarker(TRCMarker("M" + std::to_string(index)))->AppendPosition(0.1, 0.1, 1.0 / 3);
  }
  EXPECT_THAT(Print(wide).error, HasSubstr("bytes, and readers take 10237"));
  EXPECT_THAT(Print(wide).error, HasSubstr("a line of it would have "));
}

// Of as many markers the headings alone would be too long a line.
TEST(TrcWriter, LeavesOutHeadingsThatWouldMakeALineTooLong) {
  TRCDocument document;
  for (int index = 0; index < 1000; ++index) {
    document.AddMarker(TRCMarker("M" + std::to_string(index)))->AppendPosition(1, 2, 3);
  }
  TRCDocument again;
  const Printed printed = Print(document);
  EXPECT_EQ(printed.error, "");
  ASSERT_EQ(again.ReadBytes(printed.bytes, false), "");
  EXPECT_EQ(again.MarkerCount(), 1000U);
  EXPECT_EQ(again.MarkerAt(999)->SampleCount(), 1U);
}

}  // namespace
