#include <ostream>

#include "tests/cli/orvane_test.h"
#include "tests/cli/scene/scene_file.h"
#include "tests/support/trc_text.h"
#include "tests/support/user_settings.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;

// A file whose import leaves out a segment without a word of the plug-in's.
struct LeftOut {
  std::string name;
  std::string parent;  // of the spine
  std::string cause;
  std::string skeleton;  // what becomes of the spine in a new one
  std::string code;
};

std::ostream& operator<<(std::ostream& out, const LeftOut& left_out) {
  return out << left_out.name;
}

class LeftOutSegmentsTest : public test::OrvaneTest, public testing::WithParamInterface<LeftOut> {
 protected:
  LeftOutSegmentsTest() {
    Write("sound.htr", SmallMotion());
    Write("walk.htr", Replaced(SmallMotion(), "Spine Hips", "Spine " + GetParam().parent));
  }

  static std::string Told(const std::string& consequence) {
    return "orvane: walk.htr: warning: " + GetParam().cause + ". " + consequence + " [" +
           GetParam().code + "]\n";
  }

  // Onto the bones of a sound file, which have no keys.
  ProgramResult Apply(const std::vector<std::string>& flags = {}) const {
    EXPECT_EQ(
        Orvane({"import", "sound.htr", "-o", "bones.glb", "--no-animation", "--force"}).status, 0);
    std::vector<std::string> arguments = {"import",    "walk.htr", "-o",   "more.glb", "--into",
                                          "bones.glb", "--select", "Hips", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }
};

constexpr char kNoKeys[] =
    "Bones of such segments, and those below, get no keys, unless one is selected itself.";

TEST_P(LeftOutSegmentsTest, AreAWarning) {
  const ProgramResult result = Orvane({"import", "walk.htr", "-o", "walk.glb"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, testing::HasSubstr("  Nodes   2\n"));
  EXPECT_EQ(result.error, Told(GetParam().skeleton));
}

TEST_P(LeftOutSegmentsTest, AreARefusalWithStrict) {
  const ProgramResult result = Orvane({"import", "walk.htr", "-o", "walk.glb", "--strict"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, testing::StartsWith(Told(GetParam().skeleton)));
  EXPECT_FALSE(Exists("walk.glb"));
}

TEST_P(LeftOutSegmentsTest, KeyNoBonesWhenMotionIsApplied) {
  const ProgramResult result = Apply({"--apply"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, Told(kNoKeys));
  const test::SceneFile scene(folder_.File("more.glb"));
  EXPECT_THAT(scene.KeyTimes("Hips"), testing::SizeIs(3));
  EXPECT_THAT(scene.KeyTimes("Spine"), testing::IsEmpty());
  EXPECT_EQ(Apply({"--apply", "--strict"}).status, 1);
  EXPECT_EQ(Apply({"--apply", "--strict", "--allow", GetParam().code}).status, 0);
}

TEST_P(LeftOutSegmentsTest, AreToldAsWhatWasChosenLastMakesOfThem) {
  const test::NoUserSettings none(folder_.File("config"));
  EXPECT_EQ(Apply({"--settings", "user", "--apply"}).status, 0);
  EXPECT_EQ(Apply({"--settings", "user"}).error, Told(kNoKeys));
  EXPECT_EQ(Apply({"--settings", "user", "--create"}).error, Told(GetParam().skeleton));
}

INSTANTIATE_TEST_SUITE_P(
    All, LeftOutSegmentsTest,
    testing::Values(
        LeftOut{"SecondRoot", "GLOBAL", "There is a second root: \"Spine\" (line 16, column 1)",
                "A new skeleton is made of the first root and what hangs from it alone.",
                "htr-root-second"},
        LeftOut{"UnknownParent", "Hip",
                "A segment's parent is unknown: \"Hip\" (line 16, column 7)",
                "A new skeleton goes without such a segment and what hangs from it.",
                "htr-parent-unknown"},
        LeftOut{"Circle", "Spine",
                "Segments are their own ancestors: \"Spine\" (line 16, column 7)",
                "A new skeleton goes without them and what hangs from them.", "htr-parent-circle"}),
    [](const auto& each) { return each.param.name; });

class InspectionTest : public test::OrvaneTest {
 protected:
  ProgramResult Import(const std::string& file, const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"import", file, "-o", "out.glb", "--force", "--quiet"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  // As the small motion, with another section of base positions in front of its motion.
  static std::string BaseTwice() {
    const std::string again = "[BasePosition]\nHips 0 900 0 0 0 0 100\nSpine 0 100 0 0 0 0 250.5\n";
    const std::string motion = Replaced(SmallMotion(), "[Hips]", again + "[Hips]");
    return Replaced(motion, "NumSegments 2", "NumSegments 4");
  }

  test::NoUserSettings none_{folder_.File("config")};
};

const std::string kCounted =
    "orvane: walk.htr: warning: The file holds 2 lines in [SegmentNames&Hierarchy], and "
    "NumSegments "
    "announces 4 (line 5, column 13). The segments that are there are taken. "
    "[htr-hierarchy-count]\n"
    "orvane: walk.htr: warning: [BasePosition] comes again (line 20, column 2). ";

TEST_F(InspectionTest, BasePositionsThatComeAgainAreAWarning) {
  Write("walk.htr", BaseTwice());
  const ProgramResult result = Import("walk.htr");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, kCounted +
                              "The last one counts, and a new skeleton has bones more than once. "
                              "[htr-base-repeated]\n");
  EXPECT_EQ(Import("walk.htr", {"--strict"}).status, 1);
}

TEST_F(InspectionTest, SoTheyAreWhenMotionIsApplied) {
  Write("walk.htr", SmallMotion());
  EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "walk.glb"}).status, 0);
  Write("walk.htr", BaseTwice());
  EXPECT_EQ(Import("walk.htr", {"--into", "walk.glb", "--apply", "--select", "Hips"}).error,
            kCounted + "The last one counts. [htr-base-repeated]\n");
}

// --- An animation range that ends before it begins ---

TEST_F(InspectionTest, AnOffsetThatEndsTheRangeBeforeItBeginsIsAWarning) {
  Write("walk.htr", SmallMotion());
  EXPECT_EQ(Import("walk.htr", {"--offset", "-2", "--strict"}).status, 0);
  const ProgramResult result = Import("walk.htr", {"--offset", "-3"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: walk.htr: The animation range begins in frame 1 and ends in frame 0\n"
            "  --offset moves its end alone.\n");
  EXPECT_EQ(Import("walk.htr", {"--offset", "-3", "--strict"}).status, 1);
  EXPECT_THAT(Import("walk.htr", {"--offset", "-5", "--base-position"}).error,
              testing::HasSubstr("begins in frame 0 and ends in frame -2\n"));
}

TEST_F(InspectionTest, SoItIsOfMarkers) {
  const test::TrcText text{.markers = {"LFHD"}, .frames = {{"1\t2\t3"}, {"1\t2\t3"}}};
  Write("walk.trc", text.Text());
  EXPECT_EQ(Import("walk.trc", {"--offset", "-2", "--strict"}).status, 0);
  EXPECT_EQ(Import("walk.trc", {"--offset", "-3"}).error,
            "orvane: walk.trc: The animation range begins in frame 1 and ends in frame 0\n"
            "  --offset moves its end alone.\n");
}

TEST_F(InspectionTest, ARangeThatTheImportLeavesAloneIsNotMentioned) {
  Write("walk.htr", SmallMotion());
  EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "odd.glb", "--offset", "-3", "--quiet"}).status, 0);
  EXPECT_EQ(Import("walk.htr", {"--into", "odd.glb", "--no-animation", "--strict"}).status, 0);
}

// --- Numbers that the dialog stores and does not show ---

struct StoredNumber {
  const char* name;
  std::vector<std::string> file;  // the name and the text
  std::vector<std::string> flags;
  std::string message;
  std::string advice;
};

class StoredNumberTest : public InspectionTest, public testing::WithParamInterface<StoredNumber> {};

TEST_P(StoredNumberTest, IsNamedWhenTheDialogRefusesItsShow) {
  const std::string& file = GetParam().file.front();
  Write(file, GetParam().file.back());
  std::vector<std::string> flags = GetParam().flags;
  flags.insert(flags.end(), {"--settings", "user"});
  EXPECT_EQ(Import(file, flags).status, 0);
  const ProgramResult result = Import(file, {"--settings", "user"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: " + file + ": " + GetParam().message + "\n  " + GetParam().advice + "\n");
  EXPECT_EQ(Import(file, flags).status, 0);
}

std::string OneMarker() {
  return test::TrcText{.markers = {"LFHD"}, .frames = {{"1\t2\t3"}}}.Text();
}

INSTANTIATE_TEST_SUITE_P(
    All, StoredNumberTest,
    testing::Values(
        StoredNumber{"ScaleOfMotion",
                     {"walk.htr", SmallMotion()},
                     {"--scale", "1e-9"},
                     "Please choose a non-zero scale factor.",
                     "What was chosen last is 1e-09, which the dialog shows as 0.000000; --scale "
                     "chooses another."},
        StoredNumber{"ScaleOfMarkers",
                     {"walk.trc", OneMarker()},
                     {"--scale", "-0.00000025"},
                     "Please choose a non-zero scale factor.",
                     "What was chosen last is -2.5e-07, which the dialog shows as -0.000000; "
                     "--scale chooses another."},
        StoredNumber{"SizeOfBones",
                     {"walk.htr", SmallMotion()},
                     {"--segment-size", "1e-8"},
                     "Please choose a non-zero size.",
                     "What was chosen last is 1e-08, which the dialog shows as 0.000000; "
                     "--segment-size chooses another."},
        StoredNumber{"SizeOfMarkers",
                     {"walk.trc", OneMarker()},
                     {"--size", "1e-8"},
                     "Please choose a non-zero size.",
                     "What was chosen last is 1e-08, which the dialog shows as 0.000000; --size "
                     "chooses another."}),
    [](const auto& test_case) { return test_case.param.name; });

TEST_F(InspectionTest, WhatIsTypedIsNotWhatWasChosenLast) {
  Write("walk.htr", SmallMotion());
  EXPECT_EQ(Import("walk.htr", {"--scale", "1e-9", "--settings", "user"}).status, 0);
  for (const std::vector<std::string>& flags :
       {std::vector<std::string>{"--scale", "0", "--settings", "user"}, {"--scale", "0"}}) {
    EXPECT_EQ(Import("walk.htr", flags).error,
              "orvane: walk.htr: Please choose a non-zero scale factor.\n"
              "  --scale takes a number that is not 0, such as 0.1.\n");
  }
}

}  // namespace
