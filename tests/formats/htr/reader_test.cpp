#include "formats/htr/reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "formats/htr/document_checker.h"
#include "tests/formats/htr/motion_text.h"

namespace orvane {
namespace {

using test_text::Join;
using test_text::Lines;
using test_text::TwoBones;
using test_text::TwoBonesWith;

constexpr double kRadians = 0.017453292519943295;

class HtrReader : public ::testing::Test {
 protected:
  std::string Read(const std::string& bytes, bool read_motion = true) {
    const std::string message = ReadHtrBytes(document_, bytes, read_motion);
    EXPECT_EQ(FindFault(document_), "");
    return message;
  }

  std::string Read(const Lines& lines, bool read_motion = true) {
    return Read(Join(lines), read_motion);
  }

  HtrSegment& Find(const std::string& name) {
    HtrSegment* segment = document_.FindSegment(name);
    if (segment == nullptr) throw std::out_of_range("no segment " + name);
    return *segment;
  }

  HtrDocument document_;
};

// The sections of a file of one bone called Hips, for tests that vary one of them.
const Lines kOneBone = {"[SegmentNames&Hierarchy]", "Hips GLOBAL", "[BasePosition]",
                        "Hips 0 0 0 0 0 0 100"};

Lines OneBoneAnd(const Lines& more) {
  Lines lines = {"[Header]", "NumSegments 1"};
  lines.insert(lines.end(), kOneBone.begin(), kOneBone.end());
  lines.insert(lines.end(), more.begin(), more.end());
  return lines;
}

void ExpectVector(const Vector3& vector, double x, double y, double z) {
  EXPECT_EQ(vector.x(), x);
  EXPECT_EQ(vector.y(), y);
  EXPECT_EQ(vector.z(), z);
}

void ExpectAngles(const EulerRotation& rotation, double x, double y, double z) {
  EXPECT_EQ(rotation[0], x);
  EXPECT_EQ(rotation[1], y);
  EXPECT_EQ(rotation[2], z);
}

// ---- a whole file

TEST_F(HtrReader, ReadsAWholeFile) {
  ASSERT_EQ(Read(TwoBones()), "");
  EXPECT_EQ(document_.GetNumSegments(), 2);
  EXPECT_EQ(document_.GetNumFrames(), 2u);
  EXPECT_EQ(document_.GetDataFrameRate(), 60);
  EXPECT_EQ(document_.GetStartFrame(), 1);
  EXPECT_EQ(document_.GetBoneLengthAxis(), 1u);
  EXPECT_EQ(document_.GetScaleFactor(), 1.0);

  HtrSegment& hips = Find("Hips");
  EXPECT_TRUE(hips.GetIsRoot());
  EXPECT_EQ(hips.GetParent(), nullptr);
  ExpectVector(hips.GetBaseTranslation(), 0, 950, 0);
  ExpectAngles(hips.GetBaseRotation(), 0, 90 * kRadians, 0);
  EXPECT_EQ(hips.GetBoneLength(), 120.0);
  ASSERT_EQ(hips.GetNumFrames(), 2u);
  ExpectVector(hips.GetFrameTranslation(0), 1, 2, 3);
  ExpectAngles(hips.GetFrameRotation(0), 10 * kRadians, 20 * kRadians, 30 * kRadians);
  EXPECT_EQ(hips.GetFrameScale(0), 1.0);
  ExpectVector(hips.GetFrameTranslation(1), 4, 5, 6);
  EXPECT_EQ(hips.GetFrameScale(1), 0.5);

  HtrSegment& spine = Find("Spine");
  EXPECT_FALSE(spine.GetIsRoot());
  EXPECT_EQ(spine.GetParent(), &hips);
  EXPECT_EQ(hips.GetChild(0), &spine);
  ExpectAngles(spine.GetFrameRotation(1), 0, 0, -45 * kRadians);
}

TEST_F(HtrReader, ClearsTheDocumentFirst) {
  ASSERT_EQ(Read(TwoBones()), "");
  ASSERT_EQ(Read("[Header]\n[EndOfFile]\n"), "");
  EXPECT_EQ(document_.GetNumSegments(), 0);
  EXPECT_EQ(document_.GetNumFrames(), 0u);
}

TEST_F(HtrReader, ReadsAnEmptyFileAsAnEmptyDocument) {
  EXPECT_EQ(Read(std::string()), "");
  EXPECT_EQ(document_.GetNumSegments(), 0);
}

// ---- lines

TEST_F(HtrReader, TakesEitherLineEnd) {
  std::string bytes = TwoBones();
  bytes.erase(std::remove(bytes.begin(), bytes.end(), '\r'), bytes.end());
  ASSERT_EQ(Read(bytes), "");
  EXPECT_EQ(Find("Spine").GetParent(), &Find("Hips"));
}

TEST_F(HtrReader, TakesManyCarriageReturnsAsOneLineEnd) {
  std::string bytes;
  for (char character : TwoBones())
    bytes += character == '\r' ? "\r\r\r" : std::string(1, character);
  ASSERT_EQ(Read(bytes), "");
  EXPECT_TRUE(Find("Hips").GetIsRoot());
}

TEST_F(HtrReader, NeedsNoLineEndAtTheEnd) {
  std::string bytes = "[Header]\nNumSegments 1\n[SegmentNames&Hierarchy]\nHips GLOBAL\n";
  bytes += "[BasePosition]\nHips 1 2 3 0 0 0 100";
  for (const char* end : {"", "\r", "\r\r", "\n", "\r\n"}) {
    ASSERT_EQ(Read(bytes + end), "");
    EXPECT_EQ(Find("Hips").GetBoneLength(), 100.0);
  }
}

TEST_F(HtrReader, SkipsCommentsAndCutsThemOff) {
  ASSERT_EQ(Read(Lines{"# comment", "[Header] # here too", "#NumFrames 3", "NumFrames 4#",
                       "NumSegments 1 \t # one", "[SegmentNames&Hierarchy]", "Hips GLOBAL # remark",
                       "\t # only a remark", "[BasePosition]", "Hips 1 2 3 # no more"}),
            "");
  EXPECT_EQ(document_.GetNumFrames(), 4u);
  EXPECT_TRUE(Find("Hips").GetIsRoot());
  ExpectVector(Find("Hips").GetBaseTranslation(), 1, 2, 3);
}

TEST_F(HtrReader, CutsNamesAtACommentToo) {
  ASSERT_EQ(Read(OneBoneAnd({"[Hips# torn", "1 1 2 3 0 0 0 1"})), "");
  EXPECT_EQ(Find("Hips").GetNumFrames(), 1u);
}

TEST_F(HtrReader, SkipsLinesWithoutATokenInEverySection) {
  const Lines empty = {"", " ", "\t", " \t "};
  Lines lines = empty;
  for (const std::string& line : OneBoneAnd({"[Hips]", "1 1 2 3 0 0 0 1", "[EndOfFile]"})) {
    lines.push_back(line);
    lines.insert(lines.end(), empty.begin(), empty.end());
  }
  ASSERT_EQ(Read(lines), "");
  EXPECT_EQ(document_.GetNumSegments(), 1);
  EXPECT_EQ(Find("Hips").GetNumFrames(), 1u);
}

TEST_F(HtrReader, EndsALineAtANul) {
  std::string bytes = Join(OneBoneAnd({}));
  const std::string nul(1, '\0');
  bytes.replace(bytes.find("Hips 0 0 0"), 10, "Hips 7 8" + nul + "9");
  ASSERT_EQ(Read(bytes), "");
  ExpectVector(Find("Hips").GetBaseTranslation(), 7, 8, 0);
}

TEST_F(HtrReader, ReadsALongLineAsSeveral) {
  // The second piece is a line of its own: here one of the hierarchy.
  const std::string filler(10239 - 12, ' ');
  const std::string tail = "Spine Hips";
  ASSERT_EQ(Read("[SegmentNames&Hierarchy]\nHips GLOBAL " + filler + tail + "\n"), "");
  ASSERT_EQ(document_.GetNumSegments(), 2);
  EXPECT_NE(document_.FindSegment("Spine"), nullptr);
}

TEST_F(HtrReader, ReadsALineThatFitsAsOne) {
  const std::string filler(10238 - 12 - 4, ' ');
  ASSERT_EQ(Read("[SegmentNames&Hierarchy]\r\nHips GLOBAL " + filler + "NONE\r\n"), "");
  ASSERT_EQ(document_.GetNumSegments(), 1);
}

TEST_F(HtrReader, DropsACommentWithThePieceItStandsIn) {
  const std::string comment = "#" + std::string(10238, 'x');
  ASSERT_EQ(Read("[SegmentNames&Hierarchy]\n" + comment + "Hips GLOBAL\n"), "");
  EXPECT_NE(document_.FindSegment("Hips"), nullptr);
}

// ---- sections

TEST_F(HtrReader, IgnoresLinesBeforeTheFirstSection) {
  ASSERT_EQ(Read("FileType trc\nHips GLOBAL\n1 2 3\n" + TwoBones()), "");
  EXPECT_EQ(document_.GetNumSegments(), 2);
}

TEST_F(HtrReader, KnowsSectionsByTheirExactNamesOnly) {
  // An unknown name is a motion section: what follows is not read as a header.
  for (const char* name : {"[header]", "[ Header]", "[Header ]", "[HEADER]"}) {
    ASSERT_EQ(Read(Lines{name, "FileType trc"}), "") << name;
  }
}

TEST_F(HtrReader, IgnoresWhatFollowsASectionsName) {
  EXPECT_EQ(Read(Lines{"[Header] of sorts", "FileVersion 9"}),
            "The file does not have a compatible \"FileVersion\" header state");
  EXPECT_EQ(Read(Lines{"[Header] of [sorts]", "FileVersion 9"}),
            "The file does not have a compatible \"FileVersion\" header state");
}

TEST_F(HtrReader, TakesASectionLineWithoutItsClosingBracket) {
  EXPECT_EQ(Read(Lines{"[Header", "FileVersion 9"}),
            "The file does not have a compatible \"FileVersion\" header state");
  EXPECT_EQ(Read(Lines{"[Header \t", "FileVersion 9"}),
            "The file does not have a compatible \"FileVersion\" header state");
}

// Only a comment or a line end takes the blanks before it along.
TEST_F(HtrReader, KeepsTheBlanksBeforeANulInASectionsName) {
  const std::string nul(1, '\0');
  EXPECT_EQ(Read("[Header" + nul + "\nFileVersion 9\n"),
            "The file does not have a compatible \"FileVersion\" header state");
  EXPECT_EQ(Read("[Header " + nul + "\nFileVersion 9\n"), "");
}

TEST_F(HtrReader, SeesASectionOnlyAtTheStartOfALine) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", " [Header] GLOBAL"}), "");
  EXPECT_NE(document_.FindSegment("[Header]"), nullptr);
}

TEST_F(HtrReader, TakesSectionsInAnyOrder) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "Hips GLOBAL", "[Hips]", "5 1 2 3 90 0 0 1",
                       "[Header]", "NumSegments 1", "[BasePosition]", "Hips 0 0 0 90 0 0 9",
                       "[EndOfFile]"}),
            "");
  EXPECT_EQ(document_.GetStartFrame(), 5);
  // Angles before the base positions are taken as they stand.
  ExpectAngles(Find("Hips").GetFrameRotation(0), 90, 0, 0);
  ExpectAngles(Find("Hips").GetBaseRotation(), 90 * kRadians, 0, 0);
}

TEST_F(HtrReader, EndsAtFourSpellingsOfTheEnd) {
  for (const char* name : {"EndOfFile", "EndofFile", "ENDOFFILE", "endoffile"}) {
    Lines lines = OneBoneAnd({"[" + std::string(name) + "]", "[Header]", "FileType trc"});
    EXPECT_EQ(Read(lines), "") << name;
  }
}

TEST_F(HtrReader, ReadsOnAfterAnyOtherSpellingOfTheEnd) {
  for (const char* name : {"EndOFFile", "endOfFile", "Endoffile", "EndOfFile "}) {
    Lines lines = OneBoneAnd({"[" + std::string(name) + "]", "[Header]", "FileType trc"});
    EXPECT_EQ(Read(lines), "The file does not have a compatible \"FileType\" header state") << name;
  }
}

TEST_F(HtrReader, EndsAtTheEndEvenIfASegmentHasThatName) {
  ASSERT_EQ(
      Read(Lines{"[Header]", "NumSegments 1", "[SegmentNames&Hierarchy]", "EndOfFile GLOBAL",
                 "[BasePosition]", "EndOfFile 0 0 0 0 0 0 1", "[EndOfFile]", "1 1 2 3 0 0 0 1"}),
      "");
  EXPECT_EQ(Find("EndOfFile").GetNumFrames(), 0u);
}

// ---- hierarchy

TEST_F(HtrReader, RefusesASecondSegmentOfTheSameName) {
  EXPECT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "Hips GLOBAL", "hips Hips", "Hips GLOBAL"}),
            "The file has duplicate segment names: Hips");
  EXPECT_EQ(document_.GetNumSegments(), 2);
}

TEST_F(HtrReader, TakesTheLastTokenAsTheParent) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "a GLOBAL", "b GLOBAL", "c a then b",
                       "[BasePosition]"}),
            "");
  EXPECT_EQ(Find("c").GetParent(), &Find("b"));
}

TEST_F(HtrReader, GivesASegmentWithoutAParentNameNoParent) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "Hips", "[BasePosition]"}), "");
  EXPECT_EQ(Find("Hips").GetParent(), nullptr);
  EXPECT_FALSE(Find("Hips").GetIsRoot());
}

TEST_F(HtrReader, GivesASegmentOfAnUnknownParentNoParentWithoutAMessage) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "Hips Nobody", "Leg Global", "[BasePosition]"}),
            "");
  EXPECT_EQ(Find("Hips").GetParent(), nullptr);
  EXPECT_FALSE(Find("Leg").GetIsRoot());
  EXPECT_EQ(document_.FindRootSegment(), nullptr);
}

TEST_F(HtrReader, FindsParentsThatStandFurtherDown) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "Leg Hips", "Hips GLOBAL", "[BasePosition]"}),
            "");
  EXPECT_EQ(Find("Leg").GetParent(), &Find("Hips"));
}

TEST_F(HtrReader, LinksNothingWithoutABasePositionSection) {
  ASSERT_EQ(Read(Lines{"[Header]", "NumSegments 0", "[SegmentNames&Hierarchy]", "Hips GLOBAL",
                       "Leg Hips", "[Hips]", "1 0 0 0 90 0 0 1"}),
            "");
  EXPECT_FALSE(Find("Hips").GetIsRoot());
  EXPECT_EQ(Find("Leg").GetParent(), nullptr);
  ExpectAngles(Find("Hips").GetFrameRotation(0), 90, 0, 0);
}

TEST_F(HtrReader, LinksAgainAtEachBasePositionSection) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "Hips GLOBAL", "Leg Hips", "Arm Hips",
                       "[BasePosition]", "[BasePosition]"}),
            "");
  HtrSegment& hips = Find("Hips");
  ASSERT_EQ(hips.GetNumChildren(), 4);
  EXPECT_EQ(hips.GetChild(0), &Find("Leg"));
  EXPECT_EQ(hips.GetChild(1), &Find("Arm"));
  EXPECT_EQ(hips.GetChild(2), &Find("Leg"));
  EXPECT_EQ(hips.GetChild(3), &Find("Arm"));
}

TEST_F(HtrReader, TakesParentsInACircle) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "a b", "b a", "c c", "[BasePosition]"}), "");
  EXPECT_EQ(Find("a").GetParent(), &Find("b"));
  EXPECT_EQ(Find("b").GetParent(), &Find("a"));
  EXPECT_EQ(Find("c").GetChild(0), &Find("c"));
  EXPECT_EQ(document_.FindRootSegment(), nullptr);
}

// ---- base position

TEST_F(HtrReader, NamesTheCellBehindAnUnknownSegment) {
  EXPECT_EQ(Read(Lines{"[BasePosition]", "Hipz 1.5 2 3 0 0 0 100"}), "Segment name not found: 1.5");
  EXPECT_EQ(Read(Lines{"[BasePosition]", "Hipz"}), "Segment name not found: ");
}

TEST_F(HtrReader, ReadsMissingAndMalformedCellsAsZero) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "a GLOBAL", "b a", "c a", "[BasePosition]",
                       "a 1 2", "b x --5 nan inf 0x10 1e999 7mm", "c +1 1.5.5 .5 \r 0 0 1e-999",
                       "[Header]", "NumSegments 0"}),
            "");
  ExpectVector(Find("a").GetBaseTranslation(), 1, 2, 0);
  EXPECT_EQ(Find("a").GetBoneLength(), 0.0);
  ExpectVector(Find("b").GetBaseTranslation(), 0, 0, 0);
  EXPECT_EQ(Find("b").GetBaseRotation()[0], 0.0);
  EXPECT_EQ(Find("b").GetBaseRotation()[1], 0.0);
  EXPECT_TRUE(std::isinf(Find("b").GetBaseRotation()[2]));
  EXPECT_EQ(Find("b").GetBoneLength(), 7.0);
  ExpectVector(Find("c").GetBaseTranslation(), 1, 1.5, 0.5);
  EXPECT_EQ(Find("c").GetBoneLength(), 0.0);
}

// A cell is what stands between blanks and tabs; a form feed does not end it.
TEST_F(HtrReader, DoesNotReadACellsNumberFromTheNextCell) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "a GLOBAL", "[BasePosition]", "a \f 5 \v6 7",
                       "[Header]", "NumSegments 0"}),
            "");
  ExpectVector(Find("a").GetBaseTranslation(), 0, 5, 6);
  EXPECT_EQ(Find("a").GetBaseRotation()[0], 7 * kRadians);
}

TEST_F(HtrReader, ReadsRadiansAsTheyStand) {
  ASSERT_EQ(Read(TwoBonesWith("RotationUnits", "RotationUnits Radians")), "");
  ExpectAngles(Find("Hips").GetBaseRotation(), 0, 90, 0);
  ExpectAngles(Find("Hips").GetFrameRotation(0), 10, 20, 30);
}

TEST_F(HtrReader, ReadsAnUnknownRotationUnitAsDegrees) {
  ASSERT_EQ(Read(TwoBonesWith("RotationUnits", "RotationUnits RADIAN")), "");
  ExpectAngles(Find("Hips").GetBaseRotation(), 0, 90 * kRadians, 0);
}

TEST_F(HtrReader, KeepsDegreesOnceTheyWereInForce) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "a GLOBAL", "[BasePosition]", "[Header]",
                       "RotationUnits Radians", "[BasePosition]", "a 0 0 0 90 0 0 1", "[Header]",
                       "NumSegments 0"}),
            "");
  EXPECT_EQ(Find("a").GetBaseRotation()[0], 90 * kRadians);
}

TEST_F(HtrReader, TakesTheLastOfRepeatedBasePositions) {
  ASSERT_EQ(Read(OneBoneAnd({"Hips 5 6 7 0 0 0 50", "[Header]", "NumSegments 0"})), "");
  ExpectVector(Find("Hips").GetBaseTranslation(), 5, 6, 7);
}

// ---- the segment count

TEST_F(HtrReader, ComparesTheAnnouncedCountWithTheBasePositions) {
  const std::string message = "Incorrect number of segments defined in file";
  EXPECT_EQ(Read(TwoBonesWith("NumSegments", "NumSegments 3")), message);
  EXPECT_EQ(Read(TwoBonesWith("NumSegments", "NumSegments 1")), message);
  EXPECT_EQ(Read(TwoBonesWith("NumSegments", "NumSegments -2")), message);
  EXPECT_EQ(Read(TwoBonesWith("NumSegments", "# none")), message);
  // Three in the hierarchy, two base positions.
  Lines three = {"[Header]", "NumSegments 3",  "[SegmentNames&Hierarchy]", "a GLOBAL",       "b a",
                 "c a",      "[BasePosition]", "a 0 0 0 0 0 0 1",          "b 0 0 0 0 0 0 1"};
  EXPECT_EQ(Read(three), message);
  // The hierarchy itself is not counted.
  three[1] = "NumSegments 2";
  EXPECT_EQ(Read(three), "");
}

TEST_F(HtrReader, CountsBasePositionsFromTheLastAnnouncement) {
  EXPECT_EQ(Read(OneBoneAnd({"[Header]", "NumSegments 1"})),
            "Incorrect number of segments defined in file");
  EXPECT_EQ(Read(OneBoneAnd({"[Header]", "NumSegments 0"})), "");
}

TEST_F(HtrReader, CountsBeyond32BitsWithoutOverflow) {
  EXPECT_EQ(Read(TwoBonesWith("NumSegments", "NumSegments -99999999999")),
            "Incorrect number of segments defined in file");
}

// ---- motion

TEST_F(HtrReader, TakesTheFirstFrameNumberOfTheFileAsTheStart) {
  ASSERT_EQ(Read(OneBoneAnd({"[Hips]", "0 1 2 3 0 0 0 1", "17 1 2 3 0 0 0 1"})), "");
  EXPECT_EQ(document_.GetStartFrame(), 0);
  EXPECT_EQ(Find("Hips").GetNumFrames(), 2u);
  ASSERT_EQ(Read(OneBoneAnd({"[Hips]", "-5 1 2 3 0 0 0 1"})), "");
  EXPECT_EQ(document_.GetStartFrame(), -5);
}

TEST_F(HtrReader, TakesTheStartFromTheFirstSegmentAlone) {
  ASSERT_EQ(Read(Lines{"[SegmentNames&Hierarchy]", "a GLOBAL", "b a", "[a]", "4 0 0 0 0 0 0 1",
                       "[b]", "9 0 0 0 0 0 0 1"}),
            "");
  EXPECT_EQ(document_.GetStartFrame(), 4);
}

TEST_F(HtrReader, StoresFramesInTheOrderOfTheirLines) {
  ASSERT_EQ(Read(OneBoneAnd({"[Hips]", "3 1 0 0 0 0 0 1", "1 2 0 0 0 0 0 1", "[Other]", "[Hips]",
                             "2 3 0 0 0 0 0 1"})),
            "");
  ASSERT_EQ(Find("Hips").GetNumFrames(), 3u);
  EXPECT_EQ(Find("Hips").GetFrameTranslation(0).x(), 1.0);
  EXPECT_EQ(Find("Hips").GetFrameTranslation(2).x(), 3.0);
  EXPECT_EQ(document_.GetStartFrame(), 3);
}

TEST_F(HtrReader, DoesNotCompareTheFrameCount) {
  ASSERT_EQ(Read(TwoBonesWith("NumFrames", "NumFrames 9")), "");
  EXPECT_EQ(document_.GetNumFrames(), 9u);
  EXPECT_EQ(Find("Hips").GetNumFrames(), 2u);
}

TEST_F(HtrReader, ReadsMissingCellsOfAFrameAsZero) {
  ASSERT_EQ(Read(OneBoneAnd({"[Hips]", "1 5"})), "");
  ASSERT_EQ(Find("Hips").GetNumFrames(), 1u);
  ExpectVector(Find("Hips").GetFrameTranslation(0), 5, 0, 0);
  EXPECT_EQ(Find("Hips").GetFrameScale(0), 0.0);
}

TEST_F(HtrReader, SkipsMotionOfUnknownSegments) {
  ASSERT_EQ(Read(OneBoneAnd({"[Nobody]", "7 1 2 3 0 0 0 1", "[Hips]", "9 4 5 6 0 0 0 1"})), "");
  EXPECT_EQ(document_.GetStartFrame(), 9) << "a skipped line is not the first frame";
  ASSERT_EQ(Find("Hips").GetNumFrames(), 1u);
  EXPECT_EQ(document_.GetNumSegments(), 1);
}

TEST_F(HtrReader, ReadsMotionBeforeTheHierarchyAsThatOfAnUnknownSegment) {
  ASSERT_EQ(Read(Lines{"[Hips]", "1 1 2 3 0 0 0 1", "[SegmentNames&Hierarchy]", "Hips GLOBAL"}),
            "");
  EXPECT_EQ(Find("Hips").GetNumFrames(), 0u);
}

// ---- without motion

TEST_F(HtrReader, StopsAtTheFirstMotionSectionWhenAsked) {
  ASSERT_EQ(Read(OneBoneAnd({"[Hips]", "1 1 2 3 0 0 0 1", "[Header]", "FileType trc"}), false), "");
  EXPECT_EQ(Find("Hips").GetNumFrames(), 0u);
  EXPECT_TRUE(Find("Hips").GetIsRoot());
  EXPECT_EQ(document_.GetStartFrame(), 1);
}

TEST_F(HtrReader, DoesNotCheckTheCountWhenItStopsBeforeTheMotion) {
  const std::string wrong = TwoBonesWith("NumSegments", "NumSegments 9");
  EXPECT_EQ(Read(wrong, false), "");
  EXPECT_EQ(Read(Lines{"[Header]", "NumSegments 9", "[EndOfFile]"}, false), "");
}

TEST_F(HtrReader, ChecksTheCountWhenThereIsNoMotionToStopAt) {
  EXPECT_EQ(Read(Lines{"[Header]", "NumSegments 9"}, false),
            "Incorrect number of segments defined in file");
}

TEST_F(HtrReader, ReportsHeaderFaultsWithoutMotionToo) {
  EXPECT_EQ(Read(TwoBonesWith("FileType", "FileType trc"), false),
            "The file does not have a compatible \"FileType\" header state");
}

// ---- files

class HtrFile : public ::testing::Test {
 protected:
  HtrFile() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    folder_ =
        std::filesystem::path(::testing::TempDir()) / ("orvane_htr_" + std::string(test->name()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~HtrFile() override { std::filesystem::remove_all(folder_); }

  std::string Name(const std::string& file) const { return (folder_ / file).string(); }
  void Write(const std::string& file, const std::string& bytes = TwoBones()) const {
    std::ofstream(folder_ / file, std::ios::binary) << bytes;
  }

  std::filesystem::path folder_;
  HtrDocument document_;
};

TEST_F(HtrFile, IsReadUnderItsNameWhenThatHasAnExtensionOfThree) {
  Write("walk.txt");
  EXPECT_EQ(ReadHtrFile(document_, Name("walk.txt"), true), "");
  EXPECT_EQ(document_.GetNumSegments(), 2);
}

TEST_F(HtrFile, GetsItsExtensionOtherwise) {
  Write("walk.htr");
  Write("walk.ab.htr");
  EXPECT_EQ(ReadHtrFile(document_, Name("walk"), true), "");
  EXPECT_EQ(ReadHtrFile(document_, Name("walk.ab"), true), "");
}

TEST_F(HtrFile, IsReadWithoutMotionWhenAsked) {
  Write("walk.htr");
  EXPECT_EQ(ReadHtrFile(document_, Name("walk"), false), "");
  EXPECT_EQ(document_.FindSegment("Hips")->GetNumFrames(), 0u);
}

TEST_F(HtrFile, LeavesTheDocumentUntouchedWhenItCannotBeOpened) {
  ASSERT_EQ(ReadHtrBytes(document_, TwoBones(), true), "");
  std::filesystem::create_directory(folder_ / "folder.htr");
  for (const std::string& name : {Name("missing.htr"), Name("folder.htr"), std::string()}) {
    EXPECT_EQ(ReadHtrFile(document_, name, true), "The file could not be opened") << name;
    EXPECT_EQ(document_.GetNumSegments(), 2);
  }
}

}  // namespace
}  // namespace orvane
