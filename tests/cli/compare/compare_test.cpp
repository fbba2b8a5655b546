#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/support/htr_text.h"

namespace {

using nlohmann::json;
using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

class CompareTest : public test::OrvaneTest {
 protected:
  CompareTest() { Write("a.htr", SmallMotion()); }

  ProgramResult Compare(const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"compare", "a.htr", "b.htr"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  // Expects that the codes `told_` are all that is told.
  std::string Page(int status, const std::vector<std::string>& flags = {}) const {
    const ProgramResult result = Compare(flags);
    EXPECT_EQ(result.status, status);
    EXPECT_EQ(test::CodesIn(result.error), told_);
    return result.output;
  }

  json Json(int status, std::vector<std::string> flags = {}) const {
    flags.push_back("--json");
    return json::parse(Page(status, flags));
  }

  std::vector<std::string> told_;
};

// The hips are 3 mm off in frame 2, and the spine hangs from them.
std::string MovedMotion() {
  return Replaced(SmallMotion(), "2 10 0 0 0 0 90 1", "2 10 0 3 0 0 90 1");
}

TEST_F(CompareTest, PageOfFilesThatSayTheSame) {
  Write("b.htr", SmallMotion());
  EXPECT_EQ(Page(0),
            "A  a.htr\n"
            "B  b.htr\n"
            "\n"
            "  Segment              largest mm        mean mm    largest deg       mean deg"
            "   first beyond\n"
            "  Hips                   0.000000       0.000000       0.000000       0.000000"
            "              -\n"
            "  Spine                  0.000000       0.000000       0.000000       0.000000"
            "              -\n"
            "\n"
            "Difference of 2 segments in frames 1 to 3\n"
            "  Positions       0.000000 mm at the most, 0.000000 on average\n"
            "  Orientations    0.000000 degrees at the most, 0.000000 on average\n"
            "  Tolerance       0.001 mm and 0.001 degrees: kept\n");
}

TEST_F(CompareTest, PageOfMotionsThatDiffer) {
  Write("b.htr", Replaced(MovedMotion(), "3 0 0 0 10 0 0 1", "3 0 0 0 10.5 0 0 1"));
  EXPECT_EQ(
      Page(1),
      "A  a.htr\n"
      "B  b.htr\n"
      "\n"
      "  Segment              largest mm        mean mm    largest deg       mean deg"
      "   first beyond\n"
      "  Hips                   3.000000       1.000000       0.000000       0.000000"
      "              2\n"
      "  Spine                  3.000000       1.000000       0.500000       0.166667"
      "              2\n"
      "\n"
      "Difference of 2 segments in frames 1 to 3\n"
      "  Positions       3.000000 mm at the most, 1.000000 on average; Hips in frame 2\n"
      "  Orientations    0.500000 degrees at the most, 0.083333 on average; Spine in frame 3\n"
      "  Tolerance       0.001 mm and 0.001 degrees: exceeded, first in frame 2 by Hips\n");
}

TEST_F(CompareTest, ToleranceDecidesTheStatus) {
  Write("b.htr", Replaced(MovedMotion(), "3 0 0 0 10 0 0 1", "3 0 0 0 10.5 0 0 1"));
  EXPECT_EQ(Compare({"--tolerance-mm", "3.001", "--tolerance-deg", "0.501"}).status, 0);
  EXPECT_EQ(Compare({"--tolerance-mm", "2.999", "--tolerance-deg", "0.501"}).status, 1);
  EXPECT_EQ(Compare({"--tolerance-mm", "3.001", "--tolerance-deg", "0.499"}).status, 1);
  EXPECT_THAT(Page(0, {"--tolerance-mm", "3.001", "--tolerance-deg", "1e1"}),
              EndsWith("  Tolerance       3.001 mm and 10 degrees: kept\n"));
  EXPECT_THAT(Page(1, {"--tolerance-mm=4", "--tolerance-deg=0"}),
              EndsWith("exceeded, first in frame 3 by Spine\n"));
}

TEST_F(CompareTest, ToleranceOfZeroAllowsNoDifference) {
  Write("b.htr", SmallMotion());
  EXPECT_EQ(Compare({"--tolerance-mm", "0", "--tolerance-deg", "0"}).status, 0);
}

TEST_F(CompareTest, PageOfFilesOfDifferentStructure) {
  std::string other = Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 30");
  other = Replaced(other, "Spine Hips", "Spine GLOBAL\nTail Nobody");
  other = Replaced(other, "NumSegments 2", "NumSegments 3");
  other = Replaced(other, "Spine 0 100 0 0 0 0 250.5", "Spine 0 100 0 0 0 0 1\nTail 0 0 0 0 0 0 1");
  other = Replaced(other, "[Spine]\n1 0 0 0 0 0 0 1\n", "[Spine]\n");
  Write("b.htr", other);
  told_ = {"htr-root-second", "htr-motion-missing", "htr-parent-unknown", "htr-frame-count",
           "htr-frame-number"};
  EXPECT_THAT(Page(1), HasSubstr("\nDifferent structure\n"
                                 "  frame rate 60 in A, 30 in B\n"
                                 "  Tail: only in B\n"
                                 "  Spine: parent Hips in A, parent GLOBAL in B\n"
                                 "  Spine: frame 3 only in A\n"
                                 "\n"
                                 "Difference of 1 segment in frames 1 to 3\n"));
  EXPECT_THAT(Page(1), EndsWith(": kept, but the structure differs\n"));
}

TEST_F(CompareTest, FramesOfOneFileAloneAreADifference) {
  std::string other = SmallMotion();
  for (const std::string segment : {"[Hips]\n", "[Spine]\n"}) {
    other = Replaced(other, segment + "1 ", segment + "0 0 0 0 0 0 0 1\n1 ");
  }
  Write("b.htr", Replaced(other, "NumFrames 3", "NumFrames 4"));
  EXPECT_THAT(Page(1), HasSubstr("\nDifferent structure\n  frame 0 only in B\n"));
  EXPECT_THAT(Page(1), HasSubstr("Difference of 2 segments in frames 1 to 3\n"));
  EXPECT_EQ(Json(1)["structure"]["frames"],
            json::parse(R"([{"segment": null, "only_in": "b", "range": [0, 0]}])"));
}

TEST_F(CompareTest, FilesWithoutACommonFrameAreDifferent) {
  std::string other = SmallMotion();
  other = Replaced(other, "[Hips]\n1 ", "[Hips]\n9 ");
  Write("b.htr", other);
  told_ = {"htr-frame-number"};
  EXPECT_THAT(Page(1), EndsWith("  frames 1 to 3 only in A\n  frames 9 to 11 only in B\n"
                                "\n"
                                "Difference of nothing, as no frame is in both files\n"));
  const json result = Json(1);
  EXPECT_FALSE(result["same"]);
  EXPECT_TRUE(result["frames"].is_null());
  EXPECT_TRUE(result["position_mm"].is_null());
  EXPECT_TRUE(result["segments"][0]["position_mm"].is_null());
}

TEST_F(CompareTest, FilesWithoutACommonSegmentAreDifferent) {
  std::string other = SmallMotion();
  for (std::size_t at = 0; (at = other.find("Hips", at)) != std::string::npos;) {
    other.replace(at, 4, "Body");
  }
  Write("b.htr", other);
  EXPECT_THAT(Page(1),
              EndsWith("\nDifferent structure\n"
                       "  Hips: only in A\n"
                       "  Body: only in B\n"
                       "  Spine: parent Hips in A, parent Body in B\n"
                       "\n"
                       "Difference of nothing, as no segment is in both files under one parent\n"));
  EXPECT_TRUE(Json(1)["position_mm"].is_null());
}

TEST_F(CompareTest, FilesWithoutFramesAreComparedInTheirBasePosition) {
  const std::string still = SmallMotion().substr(0, SmallMotion().find("[Hips]"));
  Write("a.htr", still);
  Write("b.htr", still);
  told_ = {"htr-motion-missing", "htr-end-missing", "htr-motion-missing", "htr-end-missing"};
  EXPECT_THAT(Page(0), HasSubstr("Difference of 2 segments in the base position, as there are no "
                                 "frames\n"));
  Write("b.htr", Replaced(still, "Hips 0 900 0", "Hips 0 901 0"));
  EXPECT_THAT(Page(1), HasSubstr("1.000000 mm at the most, 1.000000 on average; Hips\n"));
  EXPECT_THAT(Page(1), EndsWith("degrees: exceeded by Hips\n"));
  EXPECT_TRUE(Json(1)["base_position_only"]);
}

TEST_F(CompareTest, TheSameMotionInOtherWordsIsTheSame) {
  // Centimetres and radians; the hips' height and the spine's in the frames; other numbers of
  // decimals, another order of segments.
  Write("b.htr",
        "[Header]\nNumSegments 2\nNumFrames 3\nDataFrameRate 60\nCalibrationUnits cm\n"
        "RotationUnits Radians\n"
        "[SegmentNames&Hierarchy]\nSpine Hips\nHips GLOBAL\n"
        "[BasePosition]\nHips 0 0 0 0 0 0 10\nSpine 0 0 0 0 0 0 25.05\n"
        "[Spine]\n1 0 10 0 0 0 0 1\n2 0 10 0 0 0 0 1\n3 0 10 0 0.17453292519943295 0 0 1\n"
        "[Hips]\n1 0 90 0 0 0 0 1\n2 1 90 0 0 0 1.5707963267948966 1\n3 2 90 0 0 0 0 1\n"
        "[EndOfFile]\n");
  told_ = {"htr-keyword-left-out"};
  EXPECT_THAT(Page(0, {"--tolerance-mm", "1e-9", "--tolerance-deg", "1e-9"}),
              EndsWith("degrees: kept\n"));
}

TEST_F(CompareTest, AFileAgainstItselfIsTheSame) {
  const ProgramResult result = Orvane({"compare", "a", "a.htr"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, testing::StartsWith("A  a.htr\nB  a.htr\n"));
}

TEST_F(CompareTest, JsonHasTheDocumentedFields) {
  Write("b.htr", Replaced(MovedMotion(), "Spine Hips", "Spine GLOBAL"));
  told_ = {"htr-root-second"};
  EXPECT_EQ(Json(1, {"--tolerance-deg", "0.25"}), json::parse(R"({
    "version": 2,
    "file_a": "a.htr",
    "file_b": "b.htr",
    "same": false,
    "tolerance_mm": 0.001,
    "tolerance_deg": 0.25,
    "frames": [1, 3],
    "base_position_only": false,
    "position_mm": {"largest": 3, "largest_frame": 2, "largest_segment": "Hips", "mean": 1},
    "orientation_deg": {"largest": 0, "largest_frame": 1, "largest_segment": "Hips", "mean": 0},
    "first_beyond": 2,
    "first_beyond_segment": "Hips",
    "structure": {
      "frame_rate": null,
      "segments": [],
      "parents": [{"name": "Spine", "parent_a": "Hips", "parent_b": "GLOBAL"}],
      "frames": []
    },
    "segments": [
      {"name": "Hips", "frame_count": 3,
       "position_mm": {"largest": 3, "largest_frame": 2, "mean": 1},
       "orientation_deg": {"largest": 0, "largest_frame": 1, "mean": 0},
       "first_beyond": 2}
    ],
    "findings_a": [],
    "findings_b": [{
      "code": "htr-root-second", "severity": "warning", "count": 1, "line": 16, "column": 1,
      "names": ["Spine"], "cause": "There is a second root",
      "consequence": "All of them are shown."
    }]})"));
}

TEST_F(CompareTest, JsonTellsEveryDifferenceOfTheStructure) {
  std::string other = Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 30");
  other = Replaced(other, "[Spine]\n1 0 0 0 0 0 0 1\n", "[Spine]\n");
  other = Replaced(other, "Hips GLOBAL\n", "Hips GLOBAL\nTail Nobody\n");
  Write("b.htr", Replaced(Replaced(other, "NumSegments 2", "NumSegments 3"), "[Hips]",
                          "Tail 0 0 0 0 0 0 1\n[Hips]"));
  told_ = {"htr-motion-missing", "htr-parent-unknown", "htr-frame-count", "htr-frame-number"};
  EXPECT_EQ(Json(1)["structure"], json::parse(R"({
    "frame_rate": [60, 30],
    "segments": [{"name": "Tail", "only_in": "b"}],
    "parents": [],
    "frames": [{"segment": "Spine", "only_in": "a", "range": [3, 3]}]})"));
}

TEST_F(CompareTest, WhatIsNoNumberIsADifference) {
  Write("a.htr", Replaced(SmallMotion(), "2 10 0 0 0 0 90 1", "2 1e999 0 0 0 0 90 1"));
  Write("b.htr", Read("a.htr"));
  told_ = {"htr-number-infinite", "htr-number-infinite"};
  EXPECT_THAT(Page(1), HasSubstr("inf mm at the most, inf on average; Hips in frame 2\n"));
  EXPECT_TRUE(Json(1)["position_mm"]["largest"].is_null());
}

TEST_F(CompareTest, NamesCannotSteerATerminal) {
  std::string motion = SmallMotion();
  for (std::size_t at = 0; (at = motion.find("Spine", at)) != std::string::npos;) {
    motion.replace(at, 5, "S\x1b[1m");
  }
  Write("a.htr", motion);
  Write("b.htr", Replaced(motion, "S\x1b[1m Hips", "S\x1b[1m GLOBAL"));
  told_ = {"htr-root-second"};
  EXPECT_THAT(Page(1), HasSubstr("S\\x1b"));
  EXPECT_THAT(Compare().error, HasSubstr("S\\x1b"));
  EXPECT_THAT(Compare().error, Not(HasSubstr("\x1b")));
  EXPECT_THAT(Page(1), Not(HasSubstr("\x1b")));
}

TEST_F(CompareTest, DeepChainsAreCompared) {
  test::HtrText text;
  for (int i = 0; i < 10'000; ++i) {
    test::HtrText::Segment segment;
    segment.name = "S" + std::to_string(i);
    segment.parent = i == 0 ? "GLOBAL" : "S" + std::to_string(i - 1);
    segment.frames = {"1 0 0 0 0 0"};
    text.segments.push_back(segment);
  }
  Write("a.htr", text.Text());
  Write("b.htr", text.Text());
  EXPECT_EQ(Compare().status, 0);
}

struct Trouble {
  std::string name;
  std::string first;
  std::string second;
  std::string complaint;
  std::vector<std::string> told{};  // before it: codes
};

class CompareTroubleTest : public test::OrvaneTest, public testing::WithParamInterface<Trouble> {};

// Whoever asks by the status learns of a difference only where there was something to compare.
TEST_P(CompareTroubleTest, EndsWithStatusThree) {
  Write("good.htr", SmallMotion());
  Write("refused.htr", Replaced(SmallMotion(), "FileVersion 1", "FileVersion 2"));
  Write("short.htr", SmallMotion().substr(0, SmallMotion().find("Spine 0 100")));
  Write("empty.htr", "");
  for (const auto& flags : {std::vector<std::string>{}, std::vector<std::string>{"--json"}}) {
    std::vector<std::string> arguments = {"compare", GetParam().first, GetParam().second};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    const ProgramResult result = Orvane(arguments);
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_THAT(result.error, EndsWith("orvane: " + GetParam().complaint + "\n"));
    const std::string told =
        result.error.substr(0, result.error.size() - GetParam().complaint.size() - 9);
    EXPECT_EQ(test::CodesIn(told), GetParam().told);
  }
}

INSTANTIATE_TEST_SUITE_P(
    All, CompareTroubleTest,
    testing::Values(
        Trouble{"FirstIsMissing", "none.htr", "good.htr", "none.htr: No such file or directory"},
        Trouble{"SecondIsMissing", "good.htr", "none.htr", "none.htr: No such file or directory"},
        Trouble{"NameWithoutExtension", "good", "none",
                "none.htr: No such file or directory\n"
                "  A name without an extension of three letters gets \".htr\"."},
        Trouble{"Refused",
                "good.htr",
                "refused.htr",
                "refused.htr: The file does not have a compatible \"FileVersion\" header state\n"
                "  Only files with \"FileVersion 1\" in the header can be read.",
                {"htr-value-refused"}},
        Trouble{"CutShort",
                "short.htr",
                "good.htr",
                "short.htr: Incorrect number of segments defined in file\n"
                "  \"NumSegments\" in the header must be the number of lines in [BasePosition]. A "
                "file that was cut short says this too.",
                {"htr-segment-count", "htr-motion-missing", "htr-base-line-missing",
                 "htr-end-missing"}},
        Trouble{"Empty", "good.htr", "empty.htr",
                "empty.htr: error: The file is empty (line 1, column 1). Nothing is read. "
                "[htr-empty]"}),
    [](const auto& test_case) { return test_case.param.name; });

}  // namespace
