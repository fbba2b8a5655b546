#include "formats/bvk/writer.h"

#include <gmock/gmock.h>

#include <limits>
#include <string>
#include <string_view>

namespace orvane {
namespace {

using testing::EndsWith;
using testing::HasSubstr;

constexpr std::string_view kDateTime = "Wed Jun 30 21:49:08 1993\n";

std::string BvkOf(const TRCDocument& document, const std::optional<BvkOffset>& offset = {}) {
  std::string text;
  PrintBvk(document, {"walk", kDateTime, offset},
           [&text](std::string_view piece) { text += piece; });
  return text;
}

// A file of two markers and three frames, of which one has a dropout.
void ReadTwoMarkers(TRCDocument& document) {
  const std::string message = document.ReadBytes(
      "PathFileType\t3\t(X/Y/Z)\twalk.trc\n"
      "DataRate\tCameraRate\tNumFrames\tNumMarkers\tUnits\n"
      "120\t240\t3\t2\tm\t\n"
      "Frame#\tTime\tHead\t\t\tToe\t\t\t\n"
      "\t\tX1\tY1\tZ1\tX2\tY2\tZ2\n"
      "\n"
      "228\t0.0\t1\t2\t3\t4\t5\t6\n"
      "229\t0.1\t\t\t\t-1.5\t0\t0\n"
      "230\t0.2\t0.1234567\t1e3\t-7\t1\t1\t1\n",
      false);
  ASSERT_EQ(message, "");
}

// What stands behind "$Points".
std::string PointsOf(const TRCDocument& document, const std::optional<BvkOffset>& offset = {}) {
  const std::string text = BvkOf(document, offset);
  const std::string keyword = "$Points\n";
  const std::size_t at = text.find(keyword);
  return at == std::string::npos ? "no points" : text.substr(at + keyword.size());
}

// The one frame of a document whose one marker is at that position.
std::string PointsOf(const TRCPosition& position, const std::optional<BvkOffset>& offset = {}) {
  TRCDocument document;
  document.SetNumFrames(1);
  document.AddMarker(TRCMarker("Head"))->AppendPosition(position.x, position.y, position.z);
  return PointsOf(document, offset);
}

TEST(BvkWriterTest, WritesAllOfAFile) {
  TRCDocument document;
  ReadTwoMarkers(document);
  EXPECT_EQ(BvkOf(document),
            "$Comments\tBVK file generated from TRC file by\n"
            "$Comments\tOrvane OrvaneFileIO plugin\n"
            "\n"
            "$Filename   walk\n"
            "$DateTime   Wed Jun 30 21:49:08 1993\n"
            "\n"
            "$FirstFrame 228\n"
            "$LastFrame 230\n"
            "$NumFrames 3\n"
            "$NumMarkers 2\n"
            "$CaptureRate 240\n"
            "$Rate 120\n"
            "\n"
            "$Order\n"
            "Head Toe \n"
            "\n"
            "$Points\n"
            "228\t1.000000\t-3.000000\t2.000000\t4.000000\t-6.000000\t5.000000\t\n"
            "\n"
            "229\tDROPOUT\t-1.500000\t-0.000000\t0.000000\t\n"
            "\n"
            "230\t0.123457\t7.000000\t1000.000000\t1.000000\t-1.000000\t1.000000\t\n"
            "\n");
}

TEST(BvkWriterTest, LeavesOutDisabledMarkers) {
  TRCDocument document;
  ReadTwoMarkers(document);
  document.MarkerAt(0)->SetEnabled(false);
  EXPECT_THAT(BvkOf(document), HasSubstr("$NumMarkers 1\n"));
  EXPECT_THAT(BvkOf(document), HasSubstr("$Order\nToe \n\n$Points\n"));
  EXPECT_THAT(PointsOf(document), HasSubstr("229\t-1.500000\t-0.000000\t0.000000\t\n\n"));
}

TEST(BvkWriterTest, HasNamesAndPointsEvenWhenAllMarkersAreDisabled) {
  TRCDocument document;
  ReadTwoMarkers(document);
  for (TRCMarker& marker : document.markers()) marker.SetEnabled(false);
  EXPECT_THAT(BvkOf(document), HasSubstr("$NumMarkers 0\n"));
  EXPECT_THAT(BvkOf(document), EndsWith("$Order\n\n\n$Points\n228\t\n\n229\t\n\n230\t\n\n"));
}

TEST(BvkWriterTest, HasNeitherNamesNorPointsWithoutMarkers) {
  TRCDocument document;
  EXPECT_THAT(BvkOf(document), EndsWith("$Order\n"));
  document.SetNumFrames(2);
  EXPECT_THAT(BvkOf(document), EndsWith("$Rate 60\n\n$Order\n1\t\n\n2\t\n\n"));
}

// Frame by frame, whatever is gathered at once.
TEST(BvkWriterTest, KeepsEachSampleInItsFrameAcrossHundreds) {
  constexpr int kHeld = 131;
  constexpr int kAnnounced = 199;
  TRCDocument document;
  document.SetFirstFrame(1);
  document.SetNumFrames(kAnnounced);
  TRCMarker* const markers[] = {document.AddMarker(TRCMarker("Steady")),
                                document.AddMarker(TRCMarker("Fickle"))};
  std::string expected;
  for (int frame = 1; frame <= kAnnounced; ++frame) {
    const bool is_held = frame <= kHeld;
    const bool is_seen = is_held && frame % 7 < 5 && (frame < 30 || frame > 66);
    if (is_held) markers[0]->AppendPosition(frame, 0.5, -frame);
    if (is_held && !is_seen) markers[1]->AppendDropout();
    if (is_seen) markers[1]->AppendPosition(0.25, frame, 2.0);
    const std::string number = std::to_string(frame);
    expected += number + '\t';
    expected += is_held ? number + ".000000\t" + number + ".000000\t0.500000\t" : "DROPOUT\t";
    expected += is_seen ? "0.250000\t-2.000000\t" + number + ".000000\t" : "DROPOUT\t";
    expected += "\n\n";
  }
  EXPECT_EQ(PointsOf(document), expected);
}

TEST(BvkWriterTest, WritesTheAnnouncedFramesWhateverTheMarkersHold) {
  TRCDocument document;
  ReadTwoMarkers(document);
  document.SetNumFrames(5);
  EXPECT_THAT(BvkOf(document), HasSubstr("$LastFrame 232\n$NumFrames 5\n"));
  EXPECT_THAT(BvkOf(document), EndsWith("1.000000\t\n\n231\tDROPOUT\tDROPOUT\t\n\n"
                                        "232\tDROPOUT\tDROPOUT\t\n\n"));
  document.SetNumFrames(1);
  EXPECT_THAT(BvkOf(document), EndsWith("5.000000\t\n\n"));
  EXPECT_EQ(BvkOf(document).find("229\t"), std::string::npos);
}

TEST(BvkWriterTest, WritesNoFramesForNoneOrFewer) {
  TRCDocument document;
  ReadTwoMarkers(document);
  for (const std::int32_t count : {0, -1, std::numeric_limits<std::int32_t>::min()}) {
    document.SetNumFrames(count);
    EXPECT_EQ(PointsOf(document), "") << count;
  }
  document.SetNumFrames(-1);
  EXPECT_THAT(BvkOf(document), HasSubstr("$LastFrame 226\n$NumFrames -1\n"));
}

TEST(BvkWriterTest, CountsFramesOnFromTheLowestNumberBehindTheHighest) {
  TRCDocument document;
  document.SetFirstFrame(std::numeric_limits<std::int32_t>::max());
  document.SetNumFrames(2);
  EXPECT_THAT(BvkOf(document), HasSubstr("$FirstFrame 2147483647\n$LastFrame -2147483648\n"));
  EXPECT_THAT(BvkOf(document), EndsWith("2147483647\t\n\n-2147483648\t\n\n"));
}

TEST(BvkWriterTest, PutsTheOffsetWhereItsSpaceSays) {
  const TRCPosition position{1, 2, 3};
  const BvkOffset in_trc_space{10, 20, 40, true};
  const BvkOffset in_file_space{10, 20, 40, false};
  EXPECT_EQ(PointsOf(position), "1\t1.000000\t-3.000000\t2.000000\t\n\n");
  EXPECT_EQ(PointsOf(position, in_trc_space), "1\t11.000000\t-43.000000\t22.000000\t\n\n");
  EXPECT_EQ(PointsOf(position, in_file_space), "1\t11.000000\t17.000000\t42.000000\t\n\n");
}

TEST(BvkWriterTest, KeepsTheSignOfZeroAsTheSumsMakeIt) {
  const TRCPosition zero{0, 0, 0};
  const TRCPosition negative_zero{-0.0, -0.0, -0.0};
  const BvkOffset in_trc_space{0, 0, 0, true};
  const BvkOffset in_file_space{0, 0, 0, false};
  EXPECT_EQ(PointsOf(zero), "1\t0.000000\t-0.000000\t0.000000\t\n\n");
  EXPECT_EQ(PointsOf(zero, in_trc_space), "1\t0.000000\t-0.000000\t0.000000\t\n\n");
  EXPECT_EQ(PointsOf(zero, in_file_space), "1\t0.000000\t0.000000\t0.000000\t\n\n");
  EXPECT_EQ(PointsOf(negative_zero), "1\t-0.000000\t0.000000\t-0.000000\t\n\n");
}

TEST(BvkWriterTest, AddsOffsetsInDoublePrecision) {
  const BvkOffset offset{0.1F, 0, 0, true};
  EXPECT_EQ(PointsOf({1e6, 0, 0}, offset), "1\t1000000.100000\t-0.000000\t0.000000\t\n\n");
}

TEST(BvkWriterTest, MovesNoDropouts) {
  TRCDocument document;
  document.SetNumFrames(1);
  document.AddMarker(TRCMarker("Head"))->AppendDropout();
  EXPECT_EQ(PointsOf(document, BvkOffset{1, 2, 3, true}), "1\tDROPOUT\t\n\n");
}

TEST(BvkWriterTest, WritesNamesAsTheyAre) {
  TRCDocument document;
  document.AddMarker(TRCMarker("left %d heel"));
  document.AddMarker(TRCMarker("\xE9\xFF"));
  EXPECT_THAT(BvkOf(document), EndsWith("$Order\nleft %d heel \xE9\xFF \n\n$Points\n"));
}

TEST(BvkWriterTest, WritesInfinityAsWords) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_EQ(PointsOf({kInfinity, 0, kInfinity}), "1\tinf\t-inf\t0.000000\t\n\n");
}

TEST(BvkWriterTest, HandsOutFilesThatNeedSeveralPieces) {
  TRCDocument document;
  document.SetNumFrames(20'000);
  TRCMarker* const marker = document.AddMarker(TRCMarker("Head"));
  std::string expected;
  for (int frame = 1; frame <= 20'000; ++frame) {
    marker->AppendPosition(frame, 0.5, -2);
    const std::string number = std::to_string(frame);
    expected.append(number).append("\t").append(number).append(".000000\t2.000000\t0.500000\t\n\n");
  }
  EXPECT_TRUE(PointsOf(document) == expected);
}

}  // namespace
}  // namespace orvane
