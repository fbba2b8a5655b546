#include "plugin/trc/read_observer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

#include "plugin/trc/document.h"
#include "tests/support/trc_text.h"

namespace orvane {
namespace {

using test::TrcText;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

// What, line, column, text.
using Oddity = std::tuple<TRCOddity, std::size_t, std::size_t, std::string>;

class Recorder : public TRCReadObserver {
 public:
  void OnOddity(TRCOddity oddity, TRCPlace place, std::string_view text) override {
    oddities.emplace_back(oddity, place.line, place.column, std::string(text));
  }
  std::vector<Oddity> oddities;
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
  EXPECT_EQ(document.MarkerAt(1)->Positions().back().y, 5.0);
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
                          Oddity{TRCOddity::kMarkerCountMismatch, 4, 0, "4"}));
}

TEST(TRCReadObserver, HearsOfARefusedMarkerCount) {
  TrcText text = TwoFrames();
  text.marker_count = 3;
  EXPECT_THAT(OdditiesOf(text.Text(), true),
              ElementsAre(Oddity{TRCOddity::kMarkerCountRefused, 4, 0, "3"}));
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
              ElementsAre(Oddity{TRCOddity::kShortFrame, 7, 3, "1"},
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

TEST(TRCReadObserver, HearsOfCommentsAndLongLines) {
  const std::string piece = std::string(10239, '1');
  EXPECT_THAT(OdditiesOf("# by hand\nPathFileType\t4\t(X/Y/Z)\tx\n"),
              ::testing::Contains(Oddity{TRCOddity::kCommentReplacesLine, 1, 0, "# by hand"}));
  EXPECT_THAT(OdditiesOf(piece + "\n"),
              ::testing::Contains(Oddity{TRCOddity::kLongLine, 1, 0, piece}));
}

}  // namespace
}  // namespace orvane
