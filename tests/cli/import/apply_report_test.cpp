// What is said of a file and the scene that it is applied to.

#include <nlohmann/json.hpp>

#include "tests/cli/orvane_test.h"
#include "tests/cli/scene/scene_file.h"
#include "tests/support/trc_text.h"
#include "tests/support/user_settings.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using test::SmallMotion;
using test::TrcText;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

// --- Skeletons ---

// A scene "scene.glb" with the small skeleton, "Hips" and its child "Spine".
class ApplyMotionReportTest : public test::OrvaneTest {
 protected:
  ApplyMotionReportTest() {
    Write("walk.htr", SmallMotion());
    EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "scene.glb", "--quiet"}).status, 0);
  }

  ProgramResult Apply(const std::string& motion, const std::vector<std::string>& flags = {}) const {
    Write("other.htr", motion);
    std::vector<std::string> arguments = {"import", "other.htr", "--into",  "scene.glb", "--apply",
                                          "-o",     "more.glb",  "--force", "--select",  "Hips"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  static std::string OtherSpine() {
    return Replaced(Replaced(SmallMotion(), "\nSpine Hips", "\nTail Hips"), "[Spine]", "[Tail]");
  }

  static std::string OtherNames() { return Replaced(OtherSpine(), "\nSpine ", "\nTail "); }
};

TEST_F(ApplyMotionReportTest, AMotionThatFitsIsNotMentioned) {
  EXPECT_THAT(Apply(SmallMotion(), {"--quiet", "--strict"}).error, IsEmpty());
}

TEST_F(ApplyMotionReportTest, TellsWhichSegmentsFindNoBone) {
  const ProgramResult result = Apply(OtherNames());
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: other.htr: warning: A name of the file is not among what it is applied to: "
            "\"Tail\". What has such a name is left out; a bone counts below the bone of its "
            "parent, and the case of letters counts. [apply-name-missing-in-scene]\n"
            "orvane: other.htr: note: A name of the scene is not in the file: \"Spine\". What has "
            "such a name is not keyed, and stays as it is. [apply-name-missing-in-file]\n");
}

TEST_F(ApplyMotionReportTest, StrictRefusesItUnlessItIsAllowed) {
  const ProgramResult refused = Apply(OtherNames(), {"--strict"});
  EXPECT_EQ(refused.status, 1);
  EXPECT_FALSE(Exists("more.glb"));
  EXPECT_EQ(Apply(OtherNames(), {"--strict", "--allow", "apply-name-missing-in-scene"}).status, 0);
  EXPECT_TRUE(Exists("more.glb"));
}

TEST_F(ApplyMotionReportTest, TheReportFileHoldsIt) {
  EXPECT_EQ(Apply(OtherNames(), {"--report", "report.json"}).status, 0);
  const auto report = nlohmann::json::parse(Read("report.json"));
  EXPECT_EQ(report["files"][0]["action"], "apply");
  EXPECT_EQ(report["files"][0]["findings"][0]["code"], "apply-name-missing-in-scene");
}

TEST_F(ApplyMotionReportTest, WithoutAReportNothingIsSaid) {
  const ProgramResult result = Apply(OtherNames(), {"--no-report"});
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output, HasSubstr("  Report  none: --no-report\n"));
}

TEST_F(ApplyMotionReportTest, TellsThatTheRatesDifferUnlessTheSceneTakesTheFilesOwn) {
  const std::string fast = Replaced(SmallMotion(), "DataFrameRate 60", "DataFrameRate 120");
  EXPECT_EQ(Apply(fast).error,
            "orvane: other.htr: warning: There are 120 frames per second in the file, 60 in the "
            "scene. The motion plays at half speed; --frame-rate file gives the scene the rate of "
            "the file. [apply-rate-differs]\n");
  EXPECT_THAT(test::CodesIn(Apply(fast, {"--frame-rate", "file"}).error),
              ElementsAre("apply-range-shortened"));
  EXPECT_THAT(Apply(fast, {"--no-animation", "--base-position"}).error, IsEmpty());
}

TEST_F(ApplyMotionReportTest, AnotherActorsSkeletonIsANote) {
  const ProgramResult result = Apply(Replaced(SmallMotion(), "250.5", "300.5"), {"--strict"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, HasSubstr("note: A bone differs from the file's in length or base, by "
                                      "50.0 mm: \"Spine\". Joints move as in the file, and bones "
                                      "keep the lengths that they have. [apply-bone-differs]\n"));
}

TEST_F(ApplyMotionReportTest, ALengthInAnotherUnitIsNone) {
  const ProgramResult result =
      Orvane({"import", "walk.htr", "--system-unit", "in", "-o", "scene.glb", "--force"});
  ASSERT_EQ(result.status, 0);
  EXPECT_THAT(Apply(SmallMotion()).error, IsEmpty());
}

// What a range of a motion file does is told where new bones are made, too.
TEST_F(ApplyMotionReportTest, ARangeThatMovesTheFirstFrameIsAWarning) {
  const std::string warning =
      ": warning: --range begins in frame 2, and the file in frame 1. A range of a motion file "
      "says when, and not what: frame 1 is keyed in frame 2, and those behind it follow. "
      "[apply-range-moves]\n";
  EXPECT_THAT(Apply(SmallMotion(), {"--range", "2:3"}).error,
              testing::StartsWith("orvane: other.htr" + warning));
  EXPECT_EQ(
      Orvane({"import", "walk.htr", "-o", "new.glb", "--range", "2:3"}).error,
      "orvane: walk.htr" + warning +
          "orvane: walk.htr: note: Keys come to lie in the frames 2 to 3, and the scene's "
          "animation range is then 1 to 2. 1 of these 2 frames is neither played nor exported "
          "until the range is set to all of them. [apply-keys-outside-range]\n");
  EXPECT_THAT(test::CodesIn(Apply(SmallMotion(), {"--range", "1:2"}).error),
              ElementsAre("apply-range-shortened"));
}

// Whichever of the file's frames a range of a motion file would name.
TEST_F(ApplyMotionReportTest, ARangeBehindTheFramesThatAreHeldKeysOutsideTheAnimationRange) {
  Write("walk.htr", Replaced(SmallMotion(), "NumFrames 3", "NumFrames 9"));
  EXPECT_THAT(Orvane({"import", "walk.htr", "-o", "new.glb", "--range", "7:8"}).error,
              HasSubstr("orvane: walk.htr: note: Keys come to lie in the frames 7 to 8, and the "
                        "scene's animation range is then 1 to 2. The motion is neither played nor "
                        "exported until the range is set to its frames. "
                        "[apply-keys-outside-range]\n"));
}

TEST_F(ApplyMotionReportTest, ABoneBelowTheRootLeavesTheRestOfTheFileOutAndIsSaidTo) {
  Write("other.htr", SmallMotion());
  const std::vector<std::string> spine = {"import", "other.htr", "--into",  "scene.glb", "--apply",
                                          "-o",     "more.glb",  "--force", "--select",  "Spine"};
  const ProgramResult result = Orvane(spine);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.error,
      "orvane: other.htr: warning: A segment of the file is not below \"Spine\", where the "
      "motion starts: \"Hips\". It moves nothing; select the bone of \"Hips\" to start at the "
      "root of the file. [apply-start-below-root]\n");
  std::vector<std::string> dry = spine;
  dry.emplace_back("--dry-run");
  EXPECT_THAT(Orvane(dry).output, HasSubstr("  Names matched      1  Spine\n"
                                            "  In the file only   0\n"
                                            "  Not below start    1  Hips\n"
                                            "  In the scene only  0\n"));
  std::vector<std::string> as_json = spine;
  as_json.emplace_back("--json");
  EXPECT_EQ(nlohmann::json::parse(Orvane(as_json).output)["applied"]["not_below_start"],
            nlohmann::json({"Hips"}));
}

TEST_F(ApplyMotionReportTest, WhatThePluginRefusesItTellsAlone) {
  EXPECT_EQ(
      Orvane({"import", "walk.htr", "--into", "scene.glb", "--apply", "-o", "more.glb"}).error,
      "orvane: walk.htr: Please select the root of a skeleton before applying animation.\n"
      "  --into SCENE --select NAME selects in a scene of yours; --create builds a new "
      "skeleton.\n");
}

// --- What was done, and what would be ---

TEST_F(ApplyMotionReportTest, KeysThatWereSetAreToldApartFromThoseOfTheScene) {
  EXPECT_THAT(Orvane({"import", "walk.htr", "-o", "new.glb"}).output, HasSubstr("  Keys    12\n"));
  EXPECT_THAT(Apply(SmallMotion()).output, HasSubstr("  Keys    12\n"));
  EXPECT_THAT(Apply(SmallMotion(), {"--offset", "10"}).output,
              HasSubstr("  Keys    12 set, 24 in the scene"));
  EXPECT_THAT(Apply(OtherNames()).output, HasSubstr("  Keys    6 set, 12 in the scene\n"));
  EXPECT_THAT(Apply(SmallMotion(), {"--offset", "10", "--base-position"}).output,
              HasSubstr("  Keys    16 set, 28 in the scene"));
  EXPECT_THAT(Apply(SmallMotion(), {"--no-animation", "--base-position"}).output,
              HasSubstr("  Keys    4 set, 12 in the scene, in frames 0 to 3\n"));
}

TEST_F(ApplyMotionReportTest, ADryRunShowsATableAndWritesNothing) {
  const std::vector<std::string> before = {"other.htr", "scene.glb", "walk.htr"};
  const ProgramResult result =
      Apply(Replaced(OtherNames(), "0 100\nTail", "0 150\nTail"), {"--dry-run", "--offset", "10"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output,
            "Would import other.htr\n"
            "  Names matched      1  Hips\n"
            "  In the file only   1  Tail\n"
            "  In the scene only  1  Spine\n"
            "  Bones that differ  1  Hips by 50.0 mm\n"
            "  Nodes   3\n"
            "  Keys    6 set, 18 in the scene\n"
            "  Frames  1 to 13 at 60 frames per second\n"
            "  Scene   more.glb is not written\n");
  EXPECT_EQ(Names(), before);
}

TEST_F(ApplyMotionReportTest, ADryRunOfNewBonesShowsWhatWouldBeMade) {
  const ProgramResult result = Orvane({"import", "walk.htr", "-o", "new.glb", "--dry-run"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output,
            "Would import walk.htr\n"
            "  Nodes   3\n"
            "  Keys    12\n"
            "  Frames  1 to 3 at 60 frames per second\n"
            "  Scene   new.glb is not written\n");
  EXPECT_THAT(Names(), ElementsAre("scene.glb", "walk.htr"));
}

TEST_F(ApplyMotionReportTest, ADryRunIsRefusedWhereTheImportWouldBe) {
  EXPECT_EQ(Apply(SmallMotion(), {"--dry-run", "--scale", "0"}).status, 1);
  const ProgramResult strict = Apply(OtherNames(), {"--dry-run", "--strict"});
  EXPECT_EQ(strict.status, 1);
  EXPECT_THAT(strict.error, testing::EndsWith("orvane: --strict: nothing would be written because "
                                              "of apply-name-missing-in-scene\n"));
}

TEST_F(ApplyMotionReportTest, ADryRunStoresNothing) {
  const ProgramResult result = Apply(SmallMotion(), {"--dry-run", "--settings", "user"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error,
            "orvane: --dry-run: the dialog would store what --settings user lets it store\n");
}

// --- Markers ---

// A scene "walk.glb" with an object for each of the markers of "walk.trc".
class ApplyMarkersReportTest : public test::OrvaneTest {
 protected:
  ApplyMarkersReportTest() {
    const TrcText text{.markers = {"LFHD", "RFHD"},
                       .frames = {{"1\t2\t3", "4\t5\t6"}, {"1\t2\t3", "4\t5\t6"}}};
    Write("walk.trc", text.Text());
    EXPECT_EQ(Orvane({"import", "walk.trc", "-o", "walk.glb", "--quiet"}).status, 0);
  }

  ProgramResult Apply(const std::vector<std::string>& flags) const {
    std::vector<std::string> arguments = {"import", "walk.trc", "-o",      "more.glb",
                                          "--into", "walk.glb", "--force", "--apply"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }
};

TEST_F(ApplyMarkersReportTest, MarkersThatAllFindTheirObjectsAreNotMentioned) {
  const ProgramResult result = Apply({"--select", "LFHD", "--select", "RFHD"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output, HasSubstr("  Keys    4\n"));
}

TEST_F(ApplyMarkersReportTest, ChildrenOfSelectedObjectsAreFound) {
  ASSERT_EQ(Orvane({"import", "walk.trc", "-o", "walk.glb", "--root-node", "--force"}).status, 0);
  EXPECT_THAT(Apply({"--select", "TRCCloud"}).error, IsEmpty());
}

TEST_F(ApplyMarkersReportTest, TellsWhichMarkersGetNewObjects) {
  const ProgramResult result = Apply({"--select", "LFHD"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: warning: A name of the file is not among what it is applied to: "
            "\"RFHD\". Such a marker gets a new object; selected objects and their children are "
            "looked at. [apply-name-missing-in-scene]\n");
  EXPECT_THAT(result.output, HasSubstr("  Keys    4 set, 6 in the scene\n"));
}

TEST_F(ApplyMarkersReportTest, TellsWhichMarkersAllMoveOneObject) {
  const ProgramResult result = Apply({"--select", "RFHD", "--selected-only"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: warning: A name of the file is not among what it is applied to: "
            "\"LFHD\". Such a marker moves the last selected object, \"RFHD\"; selected objects "
            "and their children are looked at. [apply-name-missing-in-scene]\n"
            "orvane: walk.trc: warning: 2 markers key one node, \"RFHD\". Each takes the place of "
            "the one before it, so that the node moves as \"RFHD\", the last of them in the file. "
            "[apply-markers-share-node]\n");
  EXPECT_THAT(result.output, HasSubstr("  Keys    2 set, 4 in the scene\n"));
}

TEST_F(ApplyMarkersReportTest, TheLastMarkerOfTheFileMovesTheObjectOfAll) {
  const ProgramResult result = Apply({"--select", "LFHD", "--selected-only"});
  EXPECT_THAT(result.error,
              HasSubstr("2 markers key one node, \"LFHD\". Each takes the place of the "
                        "one before it, so that the node moves as \"RFHD\""));
  const auto scene = nlohmann::json::parse(Orvane({"scene", "more.glb", "--json"}).output);
  const auto keys = [&scene](std::size_t node) {
    return scene["nodes"].at(node)["position"]["keys"];
  };
  ASSERT_EQ(scene["nodes"][0]["name"], "LFHD");
  EXPECT_EQ(keys(0), keys(1));
}

// --- Names that are not in the scene ---

TEST_F(ApplyMarkersReportTest, ANameThatIsNotInTheSceneIsAWarningBesideOneThatIs) {
  const std::vector<std::string> flags = {"--select", "LFHD",     "--select",
                                          "RFHD",     "--select", "LBHDs"};
  const ProgramResult result = Apply(flags);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: walk.trc: warning: The scene has no node of a name that --select gives: "
            "\"LBHDs\". The others are selected; \"orvane scene\" lists the names. "
            "[apply-select-unknown]\n");
  std::vector<std::string> strict = flags;
  strict.emplace_back("--strict");
  EXPECT_EQ(Apply(strict).status, 1);
  strict.insert(strict.end(), {"--allow", "apply-select-unknown"});
  EXPECT_EQ(Apply(strict).status, 0);
}

TEST_F(ApplyMarkersReportTest, NothingIsKeyedWhenNoneOfTheNamesIsInTheScene) {
  const ProgramResult result = Apply({"--select", "lfhd", "--select", "rfhd"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error,
              HasSubstr("orvane: walk.trc: error: The scene has no nodes of the 2 names that "
                        "--select gives: \"lfhd\", \"rfhd\". Nothing is imported; did you mean "
                        "\"LFHD\" or \"RFHD\"? [apply-select-nothing]\n"));
  EXPECT_FALSE(Exists("more.glb"));
}

// --- The animation range ---

TEST_F(ApplyMarkersReportTest, KeysOutsideTheAnimationRangeAreToldAndSoIsARangeThatEndsBefore) {
  const TrcText text{.markers = {"LFHD", "RFHD"}, .frames = {8, {"1\t2\t3", "4\t5\t6"}}};
  Write("walk.trc", text.Text());
  ASSERT_EQ(Orvane({"import", "walk.trc", "-o", "walk.glb", "--force", "--quiet"}).status, 0);
  const std::vector<std::string> both = {"--select", "LFHD", "--select", "RFHD", "--range", "7:8"};
  EXPECT_EQ(
      Apply(both).error,
      "orvane: walk.trc: warning: Keys come to lie in the frames 7 to 8, and the scene's "
      "animation range is then 1 to 3. The motion is neither played nor exported until the "
      "range is set to its frames. [apply-keys-outside-range]\n"
      "orvane: walk.trc: warning: The scene's animation range was 1 to 9, and is then 1 to 3. "
      "Keys outside the new range stay in the scene, and are neither played nor exported. "
      "[apply-range-shortened]\n");
  EXPECT_THAT(Orvane({"import", "walk.trc", "-o", "new.glb", "--range", "7:8"}).error,
              HasSubstr(": note: Keys come to lie in the frames 7 to 8, "));
}

TEST_F(ApplyMarkersReportTest, TellsThatNothingIsSelected) {
  const std::string cause = "orvane: walk.trc: warning: Nothing is selected in the scene. ";
  const std::string rest =
      "; --into SCENE --select NAME selects in a scene of yours. [apply-nothing-selected]\n";
  EXPECT_EQ(Apply({}).error, cause + "Every marker gets a new object" + rest);
  EXPECT_EQ(Apply({"--no-selected-only"}).error, cause + "Every marker gets a new object" + rest);
  EXPECT_EQ(Apply({"--selected-only"}).error, cause + "Nothing is imported" + rest);
  EXPECT_EQ(Apply({"--selected-only", "--strict"}).status, 1);
}

}  // namespace
