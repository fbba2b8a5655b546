#include "plugin/htr/read_observer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <string>
#include <tuple>
#include <vector>

#include "plugin/htr/reader.h"
#include "tests/plugin/htr/motion_text.h"

namespace orvane {
namespace {

using test_text::Join;
using test_text::Lines;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Oddity = std::tuple<HtrOddity, std::size_t, std::string>;

class Recorder : public HtrReadObserver {
 public:
  void OnOddity(HtrOddity oddity, std::size_t line, std::string_view text) override {
    oddities.emplace_back(oddity, line, std::string(text));
  }
  std::vector<Oddity> oddities;
};

std::vector<Oddity> OdditiesOfBytes(const std::string& bytes) {
  HtrDocument document;
  Recorder recorder;
  (void)ReadHtrBytes(document, bytes, true, &recorder);
  return recorder.oddities;
}

std::vector<Oddity> OdditiesOf(const Lines& lines) { return OdditiesOfBytes(Join(lines)); }

TEST(HtrReadObserver, HearsNothingOfAGoodFile) {
  EXPECT_THAT(OdditiesOfBytes(test_text::TwoBones()), IsEmpty());
}

TEST(HtrReadObserver, HearsOfLinesBeforeTheFirstSection) {
  EXPECT_THAT(OdditiesOf({"# comment", "stray line"}),
              ElementsAre(Oddity{HtrOddity::kLineBeforeFirstSection, 2, "stray line"}));
}

TEST(HtrReadObserver, HearsOfUnknownWordsInTheHeader) {
  EXPECT_THAT(OdditiesOf({"[Header]", "Author someone", "CalibrationUnits Mm",
                          "RotationUnits RADIAN", "GlobalAxisofGravity Q"}),
              ElementsAre(Oddity{HtrOddity::kUnknownHeaderKeyword, 2, "Author"},
                          Oddity{HtrOddity::kUnknownCalibrationUnits, 3, "Mm"},
                          Oddity{HtrOddity::kUnknownRotationUnits, 4, "RADIAN"},
                          Oddity{HtrOddity::kUnknownAxis, 5, "Q"}));
}

TEST(HtrReadObserver, HearsOfUnreadableNumbers) {
  EXPECT_THAT(OdditiesOf({"[Header]", "NumFrames many", "ScaleFactor", "NumSegments 1",
                          "[SegmentNames&Hierarchy]", "a GLOBAL", "[BasePosition]",
                          "a 1 2mm nan 4 5 6 7", "[a]", "x 1 2 3 4 5 6", "[EndOfFile]"}),
              ElementsAre(Oddity{HtrOddity::kUnreadableNumber, 2, "many"},
                          Oddity{HtrOddity::kMissingNumber, 3, ""},
                          Oddity{HtrOddity::kUnreadableNumber, 8, "2mm"},
                          Oddity{HtrOddity::kUnreadableNumber, 8, "nan"},
                          Oddity{HtrOddity::kUnreadableNumber, 10, "x"},
                          Oddity{HtrOddity::kMissingNumber, 10, ""},
                          Oddity{HtrOddity::kFrameCountMismatch, 11, "a"}));
}

TEST(HtrReadObserver, HearsOfTroubleInTheHierarchy) {
  EXPECT_THAT(OdditiesOf({"[Header]", "NumSegments 2", "[SegmentNames&Hierarchy]", "a Nobody",
                          "[BasePosition]", "[BasePosition]"}),
              ElementsAre(Oddity{HtrOddity::kSegmentCountMismatch, 5, "BasePosition"},
                          Oddity{HtrOddity::kParentNotFound, 5, "Nobody"},
                          Oddity{HtrOddity::kHierarchyLinkedAgain, 6, "BasePosition"},
                          Oddity{HtrOddity::kParentNotFound, 6, "Nobody"}));
}

TEST(HtrReadObserver, HearsOfMotionWithoutASegment) {
  EXPECT_THAT(OdditiesOf({"[Nobody]", "1 2 3", "[EndOfFile]"}),
              ElementsAre(Oddity{HtrOddity::kUnknownSegmentSection, 1, "Nobody"},
                          Oddity{HtrOddity::kMotionOfUnknownSegment, 2, "1 2 3"}));
}

TEST(HtrReadObserver, HearsOfFrameCountsAtTheEndOfASection) {
  EXPECT_THAT(
      OdditiesOf({"[Header]", "NumFrames 2", "NumSegments 1", "[SegmentNames&Hierarchy]",
                  "a GLOBAL", "[BasePosition]", "a 0 0 0 0 0 0 1", "[a]", "1 0 0 0 0 0 0 1"}),
      ElementsAre(Oddity{HtrOddity::kFrameCountMismatch, 9, "a"}));
}

TEST(HtrReadObserver, HearsOfLinesThatAreCut) {
  const std::string piece = "#" + std::string(10238, 'x');
  EXPECT_THAT(OdditiesOfBytes(piece + "\n"), ElementsAre(Oddity{HtrOddity::kLongLine, 1, piece}));
  EXPECT_THAT(OdditiesOfBytes(piece.substr(1) + "\n"),
              ElementsAre(Oddity{HtrOddity::kLineBeforeFirstSection, 1, piece.substr(1)}));
}

TEST(HtrReadObserver, HearsWhenTheHierarchyIsLinkedNoMore) {
  std::string bytes = "[SegmentNames&Hierarchy]\n";
  for (int index = 0; index < 2000; ++index) bytes += "s" + std::to_string(index) + " GLOBAL\n";
  for (int section = 0; section < 1000; ++section) bytes += "[BasePosition]\n";
  EXPECT_THAT(OdditiesOfBytes(bytes),
              Contains(Oddity{HtrOddity::kHierarchyLeftUnlinked, 3001, "BasePosition"}));
}

// Stands in for a document that outgrows the memory.
class OutOfMemory : public HtrReadObserver {
 public:
  void OnOddity(HtrOddity, std::size_t, std::string_view) override { throw std::bad_alloc(); }
};

TEST(HtrMemory, WhenExhaustedIsToldAsAFileThatCannotBeOpened) {
  HtrDocument document;
  OutOfMemory observer;
  EXPECT_EQ(ReadHtrBytes(document, test_text::TwoBones() + "[Nobody]\n", true, &observer), "");
  const std::string bytes = Join({"[SegmentNames&Hierarchy]", "a GLOBAL", "[Nobody]"});
  EXPECT_EQ(ReadHtrBytes(document, bytes, true, &observer), "The file could not be opened");
  EXPECT_EQ(document.GetNumSegments(), 0);
}

}  // namespace
}  // namespace orvane
