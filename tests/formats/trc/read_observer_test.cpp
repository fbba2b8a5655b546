#include "formats/trc/read_observer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <tuple>
#include <vector>

#include "formats/trc/document.h"
#include "tests/support/trc_text.h"

namespace orvane {
namespace {

using test::TrcText;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What, line, field, text.
using Oddity = std::tuple<TRCOddity, std::size_t, std::size_t, std::string>;

class Recorder : public TRCReadObserver {
 public:
  void OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) override {
    oddities.emplace_back(oddity, place.line, place.field, std::string(text));
    columns.push_back(place.column);
  }
  std::vector<Oddity> oddities;
  std::vector<std::size_t> columns;
};

std::vector<Oddity> OdditiesOf(const std::string& bytes, bool include_unnamed = false) {
  TRCDocument document;
  Recorder recorder;
  (void)document.ReadBytes(bytes, include_unnamed, &recorder);
  return recorder.oddities;
}

TrcText TwoFrames() {
  return {.markers = {"a", "b"}, .frames = {{"1\t2\t3", "4\t5\t6"}, {"", "7\t8\t9"}}};
}

// A good file of one marker with these lines as its frames.
std::vector<Oddity> OdditiesOfFrames(const std::vector<std::string>& lines) {
  TrcText text{.markers = {"a"}};
  text.frame_count = static_cast<int>(lines.size());
  std::string bytes = text.Text();
  for (const std::string& line : lines) bytes += line + "\n";
  return OdditiesOf(bytes);
}

TEST(TRCReadObserver, HearsNothingOfAGoodFile) {
  EXPECT_THAT(OdditiesOf(TwoFrames().Text()), IsEmpty());
  TrcText text = TwoFrames();
  text.line_end = "\r\n";
  text.data_rate = "250.00";
  EXPECT_THAT(OdditiesOf(text.Text(), true), IsEmpty());
}

TEST(TRCReadObserver, ChangesNothingInWhatIsRead) {
  TRCDocument document;
  Recorder recorder;
  EXPECT_EQ(document.ReadBytes(TwoFrames().Text() + "3\t0\tx\t1\t1\t4\t5\n", false, &recorder), "");
  EXPECT_EQ(document.MarkerAt(0)->SampleCount(), 3u);
  EXPECT_EQ(document.MarkerAt(1)->PositionAt(2)[1], 5.0);
}

TEST(TRCReadObserver, HearsOfTheFileTypeLine) {
  EXPECT_THAT(OdditiesOf("Trajectories\t7\t(x/y/z)\n"),
              ElementsAre(Oddity{TRCOddity::kUnknownFileType, 1, 1, "Trajectories"},
                          Oddity{TRCOddity::kUnknownPathType, 1, 2, "7"},
                          Oddity{TRCOddity::kCoordinatesRefused, 1, 3, "(x/y/z)"}));
  EXPECT_THAT(OdditiesOf("PathFileType,4,(X/Y/Z)\n"),
              ElementsAre(Oddity{TRCOddity::kUnknownFileType, 1, 1, "PathFileType,4,(X/Y/Z)"},
                          Oddity{TRCOddity::kMissingNumber, 1, 2, ""},
                          Oddity{TRCOddity::kUnknownPathType, 1, 2, ""},
                          Oddity{TRCOddity::kCoordinatesRefused, 1, 3, ""}));
}

TEST(TRCReadObserver, HearsOfHeaderValues) {
  const std::string start = "PathFileType\t4\t(X/Y/Z)\tx\nnames\n";
  const std::string end = "\nFrame#\tTime\ta\t\t\t\n";
  EXPECT_THAT(OdditiesOf(start + "59.94\t0\tmany\t1\tMm\t60\t" + end),
              ElementsAre(Oddity{TRCOddity::kRateTruncated, 3, 1, "59.94"},
                          Oddity{TRCOddity::kRateNotPositive, 3, 2, "0"},
                          Oddity{TRCOddity::kUnreadableNumber, 3, 3, "many"},
                          Oddity{TRCOddity::kUnknownUnits, 3, 5, "Mm"},
                          Oddity{TRCOddity::kMissingNumber, 3, 7, ""}));
  EXPECT_THAT(OdditiesOf(start + "60\t60\t 0 \t1\tcm" + end),
              ElementsAre(Oddity{TRCOddity::kUnitsEndTheLine, 3, 5, "cm"},
                          Oddity{TRCOddity::kMissingNumber, 3, 7, ""}));
}

TEST(TRCReadObserver, HearsOfMarkerNames) {
  TrcText text{.markers = {"Unnamed 1", "a", "", "a"}};
  std::string bytes = text.Header() + text.MarkerNames();
  bytes.insert(bytes.size() - 1, "last");
  EXPECT_THAT(OdditiesOf(bytes),
              ElementsAre(Oddity{TRCOddity::kUnnamedColumnDropped, 4, 3, "Unnamed 1"},
                          Oddity{TRCOddity::kMarkerNameEmpty, 4, 9, ""},
                          Oddity{TRCOddity::kMarkerNameRepeated, 4, 12, "a"},
                          Oddity{TRCOddity::kMarkerNameLost, 4, 15, "last"},
                          Oddity{TRCOddity::kMarkerCountMismatch, 3, 4, "4"}));
}

TEST(TRCReadObserver, HearsOfOneFateOfAnEmptyNameThatIsRepeated) {
  const TrcText text{.markers = {"", "a", ""}, .marker_count = 2};
  EXPECT_THAT(OdditiesOf(text.Text()),
              ElementsAre(Oddity{TRCOddity::kMarkerNameEmpty, 4, 3, ""},
                          Oddity{TRCOddity::kMarkerNameRepeated, 4, 9, ""}));
}

TEST(TRCReadObserver, HearsOfARefusedMarkerCount) {
  TrcText text = TwoFrames();
  text.marker_count = 3;
  EXPECT_THAT(OdditiesOf(text.Text(), true),
              ElementsAre(Oddity{TRCOddity::kMarkerCountRefused, 3, 4, "3"}));
}

TEST(TRCReadObserver, HearsOfAMissingSubHeader) {
  TrcText text{.markers = {"a"}};
  EXPECT_THAT(OdditiesOf(text.Header() + text.MarkerNames() + "1\t0\t1\t2\t3\n"),
              ElementsAre(Oddity{TRCOddity::kSubHeaderIsData, 5, 1, "1"}));
}

TEST(TRCReadObserver, HearsOfCellsThatAreNoNumbers) {
  EXPECT_THAT(OdditiesOfFrames({"1\t0\tNaN\t\t2mm", "2\t0\t\t5\t", "two\t0\t \t0\t0"}),
              ElementsAre(Oddity{TRCOddity::kUnreadableNumber, 7, 3, "NaN"},
                          Oddity{TRCOddity::kMissingNumber, 7, 4, ""},
                          Oddity{TRCOddity::kUnreadableNumber, 7, 5, "2mm"},
                          Oddity{TRCOddity::kSampleWithoutX, 8, 4, "5"},
                          Oddity{TRCOddity::kUnreadableNumber, 9, 1, "two"},
                          Oddity{TRCOddity::kFrameNumberSkips, 9, 1, "two"},
                          Oddity{TRCOddity::kMissingNumber, 9, 3, ""}));
}

TEST(TRCReadObserver, HearsOfLinesOfTheWrongLength) {
  EXPECT_THAT(OdditiesOfFrames({"1\t0", "2\t0\t1\t2\t3\t\t\t4\t5", "", "3\t0\t\t\t\t \t"}),
              ElementsAre(Oddity{TRCOddity::kShortFrame, 7, 3, ""},
                          Oddity{TRCOddity::kSurplusValue, 8, 8, "4"},
                          Oddity{TRCOddity::kBlankFrame, 9, 0, ""}));
}

TEST(TRCReadObserver, HearsOfFrameNumbersThatDoNotFollow) {
  EXPECT_THAT(
      OdditiesOfFrames({"5\t0\t1\t2\t3", "6\t0\t1\t2\t3", "8\t0\t1\t2\t3", "8\t0\t1\t2\t3"}),
      ElementsAre(Oddity{TRCOddity::kFrameNumberSkips, 9, 1, "8"},
                  Oddity{TRCOddity::kFrameNumberSkips, 10, 1, "8"}));
}

TEST(TRCReadObserver, HearsOfAFrameCountThatIsNotTheAnnouncedOne) {
  TrcText text = TwoFrames();
  text.frame_count = 900;
  EXPECT_THAT(OdditiesOf(text.Text()),
              ElementsAre(Oddity{TRCOddity::kFrameCountMismatch, 8, 0, "2"}));
}

auto CountOf(TRCOddity oddity, const std::string& bytes) {
  const std::vector<Oddity> oddities = OdditiesOf(bytes);
  return std::count_if(oddities.begin(), oddities.end(),
                       [oddity](const Oddity& each) { return std::get<0>(each) == oddity; });
}

TEST(TRCReadObserver, HearsOfCommentsAndLongLines) {
  const std::string names(10239, 'x');
  const std::string header = "PathFileType\t4\t(X/Y/Z)\tx\n";
  EXPECT_EQ(CountOf(TRCOddity::kLongLine, header + names + names + "x\n"), 1);
  EXPECT_EQ(CountOf(TRCOddity::kLongLine, header + names + "\n"), 1) << "no room for the line end";
  EXPECT_EQ(CountOf(TRCOddity::kLongLine, header + names), 0);
}

TEST(TRCReadObserver, HearsOfOddBytes) {
  using namespace std::string_literals;
  TrcText text = TwoFrames();
  const std::string good = text.Text();
  EXPECT_THAT(OdditiesOf("\xEF\xBB\xBF" + good),
              ElementsAre(Oddity{TRCOddity::kByteOrderMark, 1, 1, "\xEF\xBB\xBF"},
                          Oddity{TRCOddity::kUnknownFileType, 1, 1, "\xEF\xBB\xBFPathFileType"}));
  EXPECT_THAT(OdditiesOf(good.substr(0, good.size() - 1)),
              ElementsAre(Oddity{TRCOddity::kUnfinishedEnd, 8, 0, ""}));
  EXPECT_THAT(OdditiesOfFrames({"1\t0\t1\t2\t3\r\r"}),
              ElementsAre(Oddity{TRCOddity::kSpareCarriageReturns, 7, 0, ""}));
  EXPECT_THAT(OdditiesOfFrames({"1\t0\t1\t2\t3\r2"}),
              ElementsAre(Oddity{TRCOddity::kCarriageReturn, 7, 0, "\r2"},
                          Oddity{TRCOddity::kUnreadableNumber, 7, 5, "3\r2"}));
  EXPECT_THAT(OdditiesOfFrames({"1\t0\t1\t2\t3\0\t4"s}),
              ElementsAre(Oddity{TRCOddity::kHiddenByNul, 7, 0, ""}));
}

TEST(TRCReadObserver, HearsOfNumbersThatDoNotFit) {
  EXPECT_THAT(OdditiesOfFrames({"1\t0\t1e999\t2\t3", "2.5\t0\t1\t2\t3"}),
              ElementsAre(Oddity{TRCOddity::kNumberOutOfBounds, 7, 3, "1e999"},
                          Oddity{TRCOddity::kNumberCut, 8, 1, "2.5"}));
  const std::string start = "PathFileType\t4\t(X/Y/Z)\tx\nnames\n";
  EXPECT_THAT(OdditiesOf(start + "6e9\t60\t0.5\t0\tcm\t60\t1\t\n"),
              ElementsAre(Oddity{TRCOddity::kNumberOutOfBounds, 3, 1, "6e9"},
                          Oddity{TRCOddity::kNumberCut, 3, 3, "0.5"}));
}

// Where each of the oddities of `bytes` stands, in bytes.
std::vector<std::size_t> ColumnsOf(const std::string& bytes) {
  TRCDocument document;
  Recorder recorder;
  (void)document.ReadBytes(bytes, false, &recorder);
  return recorder.columns;
}

TEST(TRCReadObserver, TellsColumnsInBytes) {
  TrcText text = TwoFrames();
  text.frames[1] = {"", "7\t8 mm\t9"};
  EXPECT_THAT(ColumnsOf(text.Text()), ElementsAre(14U));
  text.frames[1] = {"", "7"};
  EXPECT_THAT(ColumnsOf(text.Text()), ElementsAre(13U, 13U, 13U)) << "behind the line's last byte";
  text.frames.pop_back();
  text.frame_count = 3;
  EXPECT_THAT(ColumnsOf(text.Text()), ElementsAre(1U)) << "the line as a whole";
  const std::string long_frame = "1\t0\t1\t2\t3" + std::string(10232, '\t') + "4\t5\n";
  EXPECT_THAT(ColumnsOf(TrcText{.markers = {"a"}, .frame_count = 2}.Text() + long_frame),
              ElementsAre(10240U, 10240U, 10240U, 10245U, 10245U))
      << "in the line, not in its second piece";
}

// The oddity, its line and its column.
using Spot = std::tuple<TRCOddity, std::size_t, std::size_t>;

std::vector<Spot> SpotsOf(const std::string& bytes) {
  TRCDocument document;
  Recorder recorder;
  (void)document.ReadBytes(bytes, false, &recorder);
  std::vector<Spot> spots;
  for (std::size_t at = 0; at < recorder.oddities.size(); ++at) {
    spots.emplace_back(std::get<0>(recorder.oddities[at]), std::get<1>(recorder.oddities[at]),
                       recorder.columns[at]);
  }
  return spots;
}

constexpr std::size_t kPiece = 10239;

TEST(TRCReadObserver, TellsColumnsBehindAPieceThatIsThrownAway) {
  const std::string good = TrcText{.markers = {"a"}, .frame_count = 2}.Text();
  EXPECT_THAT(SpotsOf(good + "#\n" + std::string(kPiece, ' ') + "2\t0\tx\t5\t6\n"),
              ElementsAre(Spot{TRCOddity::kCommentReplacesLine, 7, 1},
                          Spot{TRCOddity::kUnreadableNumber, 7, 1},
                          Spot{TRCOddity::kShortFrame, 7, 2}, Spot{TRCOddity::kLongLine, 8, 10240},
                          Spot{TRCOddity::kFrameNumberSkips, 8, 10240},
                          Spot{TRCOddity::kUnreadableNumber, 8, 10244}));
}

TEST(TRCReadObserver, HearsOfALongLineWhoseSecondPieceIsThrownAway) {
  const std::string good = TrcText{.markers = {"a"}, .frame_count = 1}.Text();
  EXPECT_THAT(
      SpotsOf(good + "#" + std::string(kPiece, ' ') + "\n"),
      ElementsAre(Spot{TRCOddity::kCommentReplacesLine, 7, 1},
                  Spot{TRCOddity::kUnreadableNumber, 7, 1}, Spot{TRCOddity::kShortFrame, 7, 10240},
                  Spot{TRCOddity::kLongLine, 7, 10240}));
}

TEST(TRCReadObserver, TellsTheColumnsOfPiecesThatAreCommentsOrBlank) {
  const std::string good = TrcText{.markers = {"a"}, .frame_count = 2}.Text();
  const std::string frame = "1\t0\t1\t2\t3";
  const std::string piece = frame + std::string(kPiece - frame.size(), '\t');
  EXPECT_THAT(SpotsOf(good + piece + "#2\t0\t4\t5\t6\nthrown away\n"),
              ElementsAre(Spot{TRCOddity::kLongLine, 7, 10240},
                          Spot{TRCOddity::kCommentReplacesLine, 7, 10240},
                          Spot{TRCOddity::kUnreadableNumber, 7, 10240},
                          Spot{TRCOddity::kFrameNumberSkips, 7, 10240}));
  EXPECT_THAT(SpotsOf(good + piece + "\n"), ElementsAre(Spot{TRCOddity::kLongLine, 7, 10240},
                                                        Spot{TRCOddity::kBlankFrame, 7, 10240}));
}

struct Heard final : TRCReadObserver {
  explicit Heard(bool watches) : watches_frames(watches) {}
  void OnOddity(TRCOddity, TRCPlace place, std::string_view text) override { Keep(place, text); }
  void OnHeaderValue(TRCHeaderValue value, TRCPlace place, std::string_view text) override {
    Keep(place, std::to_string(static_cast<int>(value)) + "=" + std::string(text));
  }
  void OnMarker(TRCPlace place, std::string_view name) override { Keep(place, name); }
  void OnFrame(TRCPlace place, const TRCRow& row) override {
    Keep(place, "frame " + std::string(row.number));
  }
  bool WatchesFrames() const override { return watches_frames; }

  void Keep(TRCPlace place, std::string_view text) {
    heard.push_back(std::to_string(place.line) + ":" + std::to_string(place.column) + " " +
                    std::string(text));
  }

  bool watches_frames;
  std::vector<std::string> heard;
};

TEST(TRCReadObserver, HearsOfHeaderValuesMarkersAndFrames) {
  TRCDocument document;
  Heard heard(true);
  (void)document.ReadBytes(TwoFrames().Text(), false, &heard);
  EXPECT_THAT(heard.heard,
              ElementsAre("1:14 0=4", "3:1 1=60", "3:4 2=60", "3:7 3=2", "3:9 4=2", "3:11 5=mm",
                          "3:17 6=1", "4:13 a", "4:17 b", "7:1 frame 1", "8:1 frame 2"));
}

// The samples of each frame.
struct SampleListener final : TRCReadObserver {
  void OnOddity(TRCOddity, TRCPlace, std::string_view) override {}
  void OnFrame(TRCPlace, const TRCRow& row) override {
    std::string& text = heard.emplace_back();
    for (std::size_t at = 0; at < row.coordinates.size(); at += 3) {
      text += std::isnan(row.coordinates[at]) ? "none " : Whole(row.coordinates.subspan(at, 3));
    }
  }

  static std::string Whole(std::span<const double> sample) {
    std::string text;
    for (const double each : sample) {
      text += std::isnan(each) ? "0" : std::to_string(static_cast<int>(each));
    }
    return text + " ";
  }

  std::vector<std::string> heard;
};

TEST(TRCReadObserver, HearsTheSamplesOfMarkersWithACell) {
  TrcText text = TwoFrames();
  text.frames = {{"1\t2\t3", "\t\t"}, {"", "4"}, {"\t5\t", "x\t\t6"}};
  const std::string bytes = text.Text() + "\n4\t0\n5\t0\t7";
  for (const auto kept : {TRCSamples::kKept, TRCSamples::kLeftOut}) {
    TRCDocument document;
    SampleListener listener;
    MemorySource source(bytes);
    EXPECT_EQ(document.ReadFrom(source, false, &listener, kept), "");
    EXPECT_THAT(listener.heard, ElementsAre("123 none ", "none 400 ", "none 006 ", "", "", "700 "));
    EXPECT_EQ(document.MarkerCount(), 2U);
    EXPECT_EQ(document.MarkerAt(0)->SampleCount(), kept == TRCSamples::kKept ? 6U : 0U);
  }
}

TEST(TRCReadObserver, NeedNotHearOfFrames) {
  TRCDocument document;
  Heard heard(false);
  TrcText text = TwoFrames();
  text.frame_count = 3;
  text.frames[1] = {"\r\0", "x"};
  (void)document.ReadBytes(text.Text(), false, &heard);
  EXPECT_EQ(heard.heard.back(), "8:1 2");
  EXPECT_EQ(heard.heard.size(), 10U);
}

// The lines of a file, by what they are, and where it ends.
struct LineListener final : TRCReadObserver {
  explicit LineListener(bool watches) : watches_frames(watches) {}
  void OnOddity(TRCOddity, TRCPlace, std::string_view) override {}
  void OnHeaderLine(std::size_t number, const Line& line) override {
    heard.push_back("header " + std::to_string(number) + " on " + std::to_string(line.number));
  }
  void OnLineThrownAway(const Line& line) override {
    heard.push_back("no line on " + std::to_string(line.number));
  }
  void OnFrame(TRCPlace place, const TRCRow& row) override {
    heard.push_back("frame on " + std::to_string(place.line) + ": " + std::string(row.line.text) +
                    ", " + std::to_string(row.width.fields) + ", " +
                    std::to_string(row.width.last_value));
  }
  void OnEnd(TRCPlace place) override {
    heard.push_back("end " + std::to_string(place.line) + ":" + std::to_string(place.column));
  }
  bool WatchesFrames() const override { return watches_frames; }

  bool watches_frames;
  std::vector<std::string> heard;
};

std::vector<std::string> LinesHeard(const std::string& bytes, bool watches_frames) {
  TRCDocument document;
  LineListener listener(watches_frames);
  (void)document.ReadBytes(bytes, false, &listener);
  return listener.heard;
}

TEST(TRCReadObserver, HearsOfLinesOfFramesAndOthers) {
  EXPECT_THAT(
      LinesHeard("PathFileType\t4\t(X/Y/Z)\t\n#\n\n60\n\t\ta\t\n\n1\t0\n#\nno\n2\t\t \t\r", true),
      ElementsAre("header 0 on 1", "header 1 on 2", "no line on 3", "header 2 on 4",
                  "header 3 on 5", "header 4 on 6", "header 5 on 7", "frame on 7: 1\t0, 2, 2",
                  "frame on 8: #, 1, 1", "no line on 9", "frame on 10: 2\t\t \t, 4, 1",
                  "end 10:7"));
  EXPECT_THAT(LinesHeard("PathFileType\t4\t(X/Y/Z)\t\n1\n2\n3\n4\n\n#\nno\n6\n", false),
              ElementsAre("header 0 on 1", "header 1 on 2", "header 2 on 3", "header 3 on 4",
                          "header 4 on 5", "header 5 on 6", "end 10:1"));
}

TEST(TRCReadObserver, HearsOfNoEndOfAFileThatIsRefused) {
  EXPECT_THAT(LinesHeard("PathFileType\t4\n\n", true), ElementsAre("header 0 on 1"));
}

}  // namespace
}  // namespace orvane
