#include "formats/htr/read_observer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <string>
#include <tuple>
#include <vector>

#include "formats/htr/reader.h"
#include "tests/formats/htr/motion_text.h"

namespace orvane {
namespace {

using test_text::Join;
using test_text::Lines;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

// Oddity, line, column, text, and the keyword or column that it is about.
using Oddity = std::tuple<HtrOddity, std::size_t, std::size_t, std::string, std::string>;

Oddity At(std::size_t line, std::size_t column, HtrOddity oddity, const std::string& text = "",
          const std::string& field = "") {
  return {oddity, line, column, text, field};
}

class OddityRecorder : public HtrReadObserver {
 public:
  void OnOddity(HtrOddity oddity, const HtrCell& cell, std::string_view field) override {
    oddities.push_back(
        At(cell.line, cell.column, oddity, std::string(cell.text), std::string(field)));
  }
  std::vector<Oddity> oddities;
};

std::vector<Oddity> OdditiesOfBytes(const std::string& bytes) {
  HtrDocument document;
  OddityRecorder recorder;
  (void)ReadHtrBytes(document, bytes, true, &recorder);
  return recorder.oddities;
}

std::vector<Oddity> OdditiesOf(const Lines& lines) { return OdditiesOfBytes(Join(lines)); }

TEST(HtrReadObserver, HearsNothingOfAGoodFile) {
  EXPECT_THAT(OdditiesOfBytes(test_text::TwoBones()), IsEmpty());
}

TEST(HtrReadObserver, HearsOfLinesOutsideTheSections) {
  EXPECT_THAT(
      OdditiesOf({"# comment", "  stray line", "[EndOfFile]", "", "# comment", " more", "x"}),
      ElementsAre(At(2, 1, HtrOddity::kLineBeforeFirstSection, "  stray line"),
                  At(6, 2, HtrOddity::kLineAfterEnd, "more")));
}

TEST(HtrReadObserver, HearsOfThePlaceBehindTheEndAlone) {
  const std::string piece(10239, ' ');
  const std::string nul(1, '\0');
  EXPECT_THAT(OdditiesOfBytes("[EndOfFile]\n" + piece + "m\rore#" + nul + "\n"),
              ElementsAre(At(2, 10240, HtrOddity::kLineAfterEnd, "m\rore")));
}

TEST(HtrReadObserver, HearsOnceOfACountThatIsFarBelowNone) {
  EXPECT_THAT(OdditiesOf({"[Header]", "NumFrames -3000000000", "[EndOfFile]"}),
              ElementsAre(At(2, 11, HtrOddity::kNumberOutOfBounds, "-3000000000", "NumFrames")));
}

TEST(HtrReadObserver, HearsOfBytesThatAreNoPlainText) {
  const std::string nul(1, '\0');
  EXPECT_THAT(OdditiesOfBytes("\xEF\xBB\xBF[Header]\nNumFrames 1" + nul + " 2\n[x]\n"),
              ElementsAre(At(1, 1, HtrOddity::kByteOrderMark, "\xEF\xBB\xBF"),
                          At(1, 1, HtrOddity::kLineBeforeFirstSection, "\xEF\xBB\xBF[Header]"),
                          At(2, 12, HtrOddity::kHiddenByNul),
                          At(2, 1, HtrOddity::kLineBeforeFirstSection, "NumFrames 1"),
                          At(3, 2, HtrOddity::kUnknownSegmentSection, "x")));
  EXPECT_THAT(OdditiesOfBytes("[Header]\rNumFrames 1\n"),
              ElementsAre(At(1, 9, HtrOddity::kCarriageReturn, "\rNumFrames 1"),
                          At(1, 9, HtrOddity::kTextAfterSection, "\rNumFrames 1")));
}

TEST(HtrReadObserver, HearsOfCommentsThatCutAWord) {
  EXPECT_THAT(OdditiesOf({"[Header]# fine", "NumFrames 1 # fine", "NumFrames 2#3", "# fine"}),
              ElementsAre(At(3, 12, HtrOddity::kCommentInWord, "#3")));
}

TEST(HtrReadObserver, HearsOfSectionLinesThatAreNotWhatTheyLookLike) {
  EXPECT_THAT(OdditiesOf({"[Header", "[Header] NumFrames 1", "  [Header]"}),
              ElementsAre(At(1, 2, HtrOddity::kUnclosedSection, "Header"),
                          At(2, 10, HtrOddity::kTextAfterSection, "NumFrames 1"),
                          At(3, 3, HtrOddity::kIndentedSection, "[Header]"),
                          At(3, 3, HtrOddity::kUnknownHeaderKeyword, "[Header]")));
}

TEST(HtrReadObserver, HearsOfUnknownWordsInTheHeader) {
  EXPECT_THAT(OdditiesOf({"[Header]", "Author someone", "CalibrationUnits Mm",
                          "RotationUnits RADIAN", "GlobalAxisofGravity Q", "ScaleFactor is now 1"}),
              ElementsAre(At(2, 1, HtrOddity::kUnknownHeaderKeyword, "Author"),
                          At(3, 18, HtrOddity::kUnknownCalibrationUnits, "Mm", "CalibrationUnits"),
                          At(4, 15, HtrOddity::kUnknownRotationUnits, "RADIAN", "RotationUnits"),
                          At(5, 21, HtrOddity::kUnknownAxis, "Q", "GlobalAxisofGravity"),
                          At(6, 13, HtrOddity::kExtraHeaderWords, "is now")));
}

TEST(HtrReadObserver, HearsOfOddNumbers) {
  EXPECT_THAT(OdditiesOf({"[Header]", "NumFrames many", "NumFrames -1", "ScaleFactor",
                          "NumSegments 1e0", "DataFrameRate 59.94", "DataFrameRate 3000000000",
                          "[SegmentNames&Hierarchy]", "a GLOBAL", "[BasePosition]",
                          "a 1 2mm nan 4 5 6 7 8 9", "[a]", "x 1e999 2 3 4 5 6", "[EndOfFile]"}),
              ElementsAre(At(2, 11, HtrOddity::kUnreadableNumber, "many", "NumFrames"),
                          At(3, 11, HtrOddity::kNumberOutOfBounds, "-1", "NumFrames"),
                          At(4, 12, HtrOddity::kMissingNumber, "", "ScaleFactor"),
                          At(6, 15, HtrOddity::kCutNumber, "59.94", "DataFrameRate"),
                          At(7, 15, HtrOddity::kNumberOutOfBounds, "3000000000", "DataFrameRate"),
                          At(11, 5, HtrOddity::kUnreadableNumber, "2mm", "Ty"),
                          At(11, 9, HtrOddity::kUnreadableNumber, "nan", "Tz"),
                          At(11, 21, HtrOddity::kExtraCells, "8 9"),
                          At(13, 1, HtrOddity::kUnreadableNumber, "x", "Frame"),
                          At(13, 3, HtrOddity::kNumberOutOfBounds, "1e999", "Tx"),
                          At(13, 18, HtrOddity::kMissingNumber, "", "BoneScaleFactor")));
}

TEST(HtrReadObserver, HearsOfTroubleInTheHierarchy) {
  EXPECT_THAT(OdditiesOf({"[Header]", "NumSegments 2", "[SegmentNames&Hierarchy]", "a or b Nobody",
                          "[BasePosition]", "[BasePosition]"}),
              ElementsAre(At(4, 3, HtrOddity::kExtraHierarchyWords, "or b"),
                          At(5, 2, HtrOddity::kSegmentCountMismatch, "BasePosition"),
                          At(4, 8, HtrOddity::kParentNotFound, "Nobody"),
                          At(6, 2, HtrOddity::kHierarchyLinkedAgain, "BasePosition"),
                          At(4, 8, HtrOddity::kParentNotFound, "Nobody"),
                          At(6, 15, HtrOddity::kRefusedBasePositionCount)));
}

TEST(HtrReadObserver, HearsOfMotionWithoutASegment) {
  EXPECT_THAT(OdditiesOf({"[Nobody]", "1 2 3", "[EndOfFile]"}),
              ElementsAre(At(1, 2, HtrOddity::kUnknownSegmentSection, "Nobody"),
                          At(2, 1, HtrOddity::kMotionOfUnknownSegment, "1 2 3")));
}

TEST(HtrReadObserver, HearsOnceOfALineThatIsCut) {
  const std::string piece(10239, '#');
  EXPECT_THAT(OdditiesOfBytes(piece + "\n"), IsEmpty()) << "the second piece is the break alone";
  EXPECT_THAT(OdditiesOfBytes(piece + piece + piece + "\n"),
              ElementsAre(At(1, 10240, HtrOddity::kLongLine, piece)));
}

TEST(HtrReadObserver, KnowsColumnsBeyondACut) {
  const std::string bytes = "[Header]" + std::string(10231, ' ') + "  NumFrames x\n";
  EXPECT_THAT(OdditiesOfBytes(bytes),
              ElementsAre(At(1, 10240, HtrOddity::kLongLine, "  NumFrames x"),
                          At(1, 10252, HtrOddity::kUnreadableNumber, "x", "NumFrames")));
}

TEST(HtrReadObserver, HearsWhenTheHierarchyIsLinkedNoMore) {
  std::string bytes = "[SegmentNames&Hierarchy]\n";
  for (int index = 0; index < 2000; ++index) bytes += "s" + std::to_string(index) + " GLOBAL\n";
  for (int section = 0; section < 1000; ++section) bytes += "[BasePosition]\n";
  EXPECT_THAT(OdditiesOfBytes(bytes),
              Contains(At(3001, 2, HtrOddity::kHierarchyLeftUnlinked, "BasePosition")));
}

struct Refusal {
  const char* behaviour;
  Lines lines;
  std::string message;
  Oddity oddity;
};

class HtrRefusal : public ::testing::TestWithParam<Refusal> {};

TEST_P(HtrRefusal, IsToldWithItsPlace) {
  HtrDocument document;
  OddityRecorder recorder;
  EXPECT_EQ(ReadHtrBytes(document, Join(GetParam().lines), true, &recorder), GetParam().message);
  EXPECT_THAT(recorder.oddities, Contains(GetParam().oddity));
}

INSTANTIATE_TEST_SUITE_P(
    All, HtrRefusal,
    ::testing::Values(
        Refusal{"AValue",
                {"[Header]", "FileVersion 2"},
                "The file does not have a compatible \"FileVersion\" header state",
                At(2, 13, HtrOddity::kRefusedHeaderValue, "2", "FileVersion")},
        Refusal{"GravityAlongX",
                {"[Header]", "GlobalAxisofGravity x"},
                "The file does not have a compatible \"GlobalAxisofGravity\" header state",
                At(2, 21, HtrOddity::kRefusedHeaderValue, "x", "GlobalAxisofGravity")},
        Refusal{"ARepeatedName",
                {"[SegmentNames&Hierarchy]", "a GLOBAL", " a GLOBAL"},
                "The file has duplicate segment names: a",
                At(3, 2, HtrOddity::kRefusedSegmentName, "a")},
        Refusal{"AnUnknownName",
                {"[BasePosition]", "a 1.5"},
                "Segment name not found: 1.5",
                At(2, 1, HtrOddity::kRefusedBasePosition, "a")},
        Refusal{"TheCountOfBasePositions",
                {"[Header]", "NumSegments 1", "[EndOfFile]", "more"},
                "Incorrect number of segments defined in file",
                At(3, 12, HtrOddity::kRefusedBasePositionCount)}),
    [](const auto& test_case) { return test_case.param.behaviour; });

// Writes down the parts of a file as they are met.
class PartRecorder : public HtrReadObserver {
 public:
  void OnOddity(HtrOddity, const HtrCell&, std::string_view) override {}
  void OnSection(HtrSection section, const HtrCell& name) override {
    Add("section " + std::to_string(static_cast<int>(section)), name);
  }
  void OnHeaderField(const HtrCell& keyword, const HtrCell& value) override {
    Add("keyword", keyword);
    Add("value", value);
  }
  void OnSegment(const HtrCell& name, const HtrCell& parent) override {
    Add("segment", name);
    Add("parent", parent);
  }
  void OnBasePosition(const HtrCell& name) override { Add("base", name); }
  void OnFrame(const HtrCell& number) override { Add("frame", number); }
  void OnEnd(const HtrCell& end) override { Add("end", end); }

  Lines parts;

 private:
  void Add(const std::string& what, const HtrCell& cell) {
    parts.push_back(std::to_string(cell.line) + ":" + std::to_string(cell.column) + " " + what +
                    " " + std::string(cell.text));
  }
};

TEST(HtrReadObserver, HearsWhereEveryPartOfAFileStands) {
  HtrDocument document;
  PartRecorder recorder;
  const std::string bytes = Join({"[Header]", "NumSegments 1", "[SegmentNames&Hierarchy]",
                                  "  a\tGLOBAL", "[BasePosition]", "a 0 0 0 0 0 0 1", "[a]",
                                  "\t7 0 0 0 0 0 0 1", "[endoffile]", "more", "end"}) +
                            "!";
  EXPECT_EQ(ReadHtrBytes(document, bytes, true, &recorder), "");
  EXPECT_THAT(
      recorder.parts,
      ElementsAre("1:2 section 0 Header", "2:1 keyword NumSegments", "2:13 value 1",
                  "3:2 section 1 SegmentNames&Hierarchy", "4:3 segment a", "4:5 parent GLOBAL",
                  "5:2 section 2 BasePosition", "6:1 base a", "7:2 section 3 a", "8:2 frame 7",
                  "9:2 section 4 endoffile", "12:2 end "));
}

TEST(HtrReadObserver, HearsOfNoEndOfAFileThatIsRefusedOrNotReadToItsEnd) {
  HtrDocument document;
  PartRecorder recorder;
  const std::string bytes = Join({"[SegmentNames&Hierarchy]", "a GLOBAL", "[a]"});
  EXPECT_EQ(ReadHtrBytes(document, bytes, false, &recorder), "");
  EXPECT_NE(ReadHtrBytes(document, Join({"[BasePosition]", "a"}), true, &recorder), "");
  EXPECT_THAT(recorder.parts, Not(Contains(HasSubstr("end"))));
}

// Stands in for a document that outgrows the memory.
class OutOfMemory : public HtrReadObserver {
 public:
  void OnOddity(HtrOddity, const HtrCell&, std::string_view) override { throw std::bad_alloc(); }
};

TEST(HtrMemory, WhenExhaustedIsToldAsAFileThatCannotBeOpened) {
  HtrDocument document;
  OutOfMemory observer;
  EXPECT_EQ(ReadHtrBytes(document, test_text::TwoBones(), true, &observer), "");
  const std::string bytes = Join({"[SegmentNames&Hierarchy]", "a GLOBAL", "[Nobody]"});
  EXPECT_EQ(ReadHtrBytes(document, bytes, true, &observer), "The file could not be opened");
  EXPECT_EQ(document.GetNumSegments(), 0);
}

}  // namespace
}  // namespace orvane
