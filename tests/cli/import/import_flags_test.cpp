#include "formats/htr/reader.h"
#include "tests/cli/orvane_test.h"
#include "tests/cli/scene/scene_file.h"
#include "tests/support/htr_skeleton_pose.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using test::SceneFile;
using test::SmallMotion;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

class ImportFlagsTest : public test::OrvaneTest {
 protected:
  ImportFlagsTest() { Write("walk.htr", SmallMotion()); }

  ProgramResult Import(const std::vector<std::string>& flags) const {
    std::vector<std::string> arguments = {"import", "walk.htr", "-o", "walk.glb", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  SceneFile Scene(const std::vector<std::string>& flags) const {
    const ProgramResult result = Import(flags);
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_THAT(result.error, IsEmpty());
    return SceneFile(folder_.File("walk.glb"));
  }

  // The line "Frames" of the summary.
  std::string Frames(const std::vector<std::string>& flags) const {
    const std::string summary = Import(flags).output;
    const std::size_t start = summary.find("Frames  ") + 8;
    return summary.substr(start, summary.find('\n', start) - start);
  }

  void ExpectRefusal(const std::vector<std::string>& flags, const std::string& complaint) const {
    const ProgramResult result = Import(flags);
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.error, "orvane: walk.htr: " + complaint);
    EXPECT_FALSE(Exists("walk.glb"));
  }
};

// --- What the flags do to the scene ---

TEST_F(ImportFlagsTest, WithoutFlagsASkeletonIsCreatedAndKeyed) {
  const SceneFile scene = Scene({});
  EXPECT_THAT(scene.NodeNames(), testing::IsSupersetOf({"walk", "Hips", "Spine"}));
  EXPECT_THAT(scene.KeyTimes("Hips"), SizeIs(3));
}

TEST_F(ImportFlagsTest, AnimationCanBeLeftOut) {
  EXPECT_THAT(Scene({"--animation"}).KeyTimes("Hips"), SizeIs(3));
  EXPECT_THAT(Scene({"--no-animation"}).KeyTimes("Hips"), IsEmpty());
}

TEST_F(ImportFlagsTest, BasePositionAddsAKeyBeforeTheMotion) {
  EXPECT_THAT(Scene({"--base-position"}).KeyTimes("Hips"), SizeIs(4));
  EXPECT_THAT(Scene({"--no-base-position"}).KeyTimes("Hips"), SizeIs(3));
  EXPECT_EQ(Frames({"--base-position"}), "0 to 3 at 60 frames per second");
}

TEST_F(ImportFlagsTest, EndEffectorsAddANodeAtTheEnd) {
  EXPECT_THAT(Scene({"--no-end-effectors"}).NodeNames(), SizeIs(4));
  EXPECT_THAT(Scene({"--end-effectors"}).NodeNames(), SizeIs(5));
}

TEST_F(ImportFlagsTest, RangeAndAllChooseTheNumberOfFrames) {
  EXPECT_THAT(Scene({"--range", "1:2"}).KeyTimes("Hips"), SizeIs(2));
  EXPECT_THAT(Scene({"--range", "1:1"}).KeyTimes("Hips"), SizeIs(1));
  EXPECT_THAT(Scene({"--all"}).KeyTimes("Hips"), SizeIs(3));
}

TEST_F(ImportFlagsTest, RangeTogetherWithNoAnimationIsPossible) {
  EXPECT_THAT(Scene({"--no-animation", "--range", "1:2"}).KeyTimes("Hips"), IsEmpty());
}

TEST_F(ImportFlagsTest, OffsetMovesTheKeysAndTheEndOfTheRange) {
  EXPECT_EQ(Frames({"--offset", "10"}), "1 to 13 at 60 frames per second");
  EXPECT_EQ(Frames({"--offset", "-1"}), "1 to 2 at 60 frames per second");
}

TEST_F(ImportFlagsTest, FrameRateComesFromTheFileUnlessItIsKept) {
  EXPECT_EQ(Frames({}), "1 to 3 at 60 frames per second");
  EXPECT_EQ(Frames({"--frame-rate", "file"}), "1 to 3 at 60 frames per second");
  EXPECT_EQ(Frames({"--frame-rate", "keep"}), "1 to 3 at 30 frames per second");
}

TEST_F(ImportFlagsTest, ScaleMultipliesLengths) {
  EXPECT_NEAR(Scene({}).Position("Hips", 0)[1], 0.9, 1e-6);
  EXPECT_NEAR(Scene({"--scale", "0.5"}).Position("Hips", 0)[1], 0.45, 1e-6);
  EXPECT_NEAR(Scene({"--scale", "-1"}).Position("Hips", 0)[1], -0.9, 1e-6);
}

// The scene file is in metres whatever the host's unit is.
TEST_F(ImportFlagsTest, SystemUnitDoesNotChangeTheSizeOfTheFigure) {
  for (const std::string unit : {"mm", "cm", "m", "in", "ft"}) {
    EXPECT_NEAR(Scene({"--system-unit", unit}).Position("Spine", 1)[1], 0.9, 1e-6) << unit;
    EXPECT_NEAR(Scene({"--system-unit", unit}).Position("Spine", 1)[0], -0.09, 1e-6) << unit;
  }
}

TEST_F(ImportFlagsTest, QuietLeavesOutTheSummaryOnly) {
  const ProgramResult result = Import({"--quiet"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_TRUE(Exists("walk.glb"));
}

// --- What the plug-in refuses ---

TEST_F(ImportFlagsTest, ApplyNeedsASelection) {
  ExpectRefusal({"--apply"},
                "Please select the root of a skeleton before applying animation.\n"
                "  --into SCENE --select NAME selects in a scene of yours; --create builds a new "
                "skeleton.\n");
}

TEST_F(ImportFlagsTest, ApplyNeedsSomethingToKey) {
  ExpectRefusal({"--apply", "--no-animation"},
                "Please choose either Base Position, Animation, or both when in apply mode.\n"
                "  --apply needs --animation or --base-position.\n");
}

TEST_F(ImportFlagsTest, StartFrameBelowTheFirst) {
  ExpectRefusal({"--range", "0:2"},
                "Please choose a start frame equal to or greater than 1.\n"
                "  The range must lie within the frames of the file.\n");
}

TEST_F(ImportFlagsTest, EndFrameBeyondTheLast) {
  ExpectRefusal({"--range", "1:4"},
                "Please choose an end frame less than or equal to 3.\n"
                "  The range must lie within the frames of the file.\n");
}

TEST_F(ImportFlagsTest, RangeInTheWrongOrder) {
  ExpectRefusal({"--range", "3:1"},
                "Please choose a start frame that is less than the end frame.\n"
                "  Is --range in order, and does \"NumFrames\" in the header announce any "
                "frames?\n");
}

// The dialog would take the nearest number that fits.
TEST_F(ImportFlagsTest, WholeNumbersThatDoNotFitAreWrongUsage) {
  const std::pair<const char*, const char*> rows[] = {{"--offset", "-2147483649"},
                                                      {"--offset", "2147483648"},
                                                      {"--range", "1:99999999999"},
                                                      {"--range", "-2147483649:3"},
                                                      {"--offset", "+3000000000"}};
  for (const auto& [flag, number] : rows) {
    const ProgramResult result = Import({flag, number});
    EXPECT_EQ(result.status, 2) << number;
    EXPECT_THAT(result.error, testing::HasSubstr(" is not within -2147483648 and 2147483647\n"))
        << number;
  }
  EXPECT_EQ(Orvane({"export", "a.glb", "-o", "a.htr", "--offset", "-2147483649"}).status, 2);
  EXPECT_EQ(Import({"--offset", "1.5 frames"}).status, 0) << "the dialog reads what it can";
}

TEST_F(ImportFlagsTest, SizesThatAreZeroOrNoNumber) {
  for (const std::string size : {"0", "abc", "nan", "--5", "", "1e-999"}) {
    ExpectRefusal(
        {"--segment-size", size},
        "Please choose a non-zero size.\n"
        "  --size takes a number that is not 0, such as 1.5; for an HTR file, --segment-size "
        "does.\n");
  }
}

TEST_F(ImportFlagsTest, ScalesThatAreZeroOrNoNumber) {
  for (const std::string scale : {"0", "abc", "nan", "--5", "", "1e-999"}) {
    ExpectRefusal({"--scale", scale},
                  "Please choose a non-zero scale factor.\n"
                  "  --scale takes a number that is not 0, such as 0.1.\n");
  }
}

TEST_F(ImportFlagsTest, AScaleTooLargePassesTheDialogButCannotBeSaved) {
  const ProgramResult result = Import({"--scale", "1e999"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.error, testing::HasSubstr(" cannot be saved: "));
  EXPECT_FALSE(Exists("walk.glb"));
}

// --- What a person could not do ---

TEST_F(ImportFlagsTest, FlagsOfDisabledControlsAreWrongUsage) {
  for (const std::vector<std::string>& flag : std::vector<std::vector<std::string>>{
           {"--segment-size", "2"}, {"--end-effectors"}, {"--no-end-effectors"}}) {
    std::vector<std::string> flags = {"--apply"};
    flags.insert(flags.end(), flag.begin(), flag.end());
    const ProgramResult result = Import(flags);
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error, "orvane: " + flag.front() +
                                ": the dialog has this control disabled while \"Apply\" is "
                                "chosen; --create enables it\n");
    EXPECT_FALSE(Exists("walk.glb"));
  }
}

// --- Selection ---

TEST_F(ImportFlagsTest, ANewSceneHasNothingToSelect) {
  const ProgramResult result = Import({"--apply", "--select", "Hips"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: walk.htr: error: The scene has no node of the name that --select gives: "
            "\"Hips\". Nothing is imported; \"orvane scene\" lists the names. "
            "[apply-select-nothing]\n"
            "orvane: walk.htr: nothing was written because of apply-select-nothing\n");
}

TEST_F(ImportFlagsTest, SelectMayBeRepeatedAndTakesNamesAsTheyAre) {
  const ProgramResult result = Import({"--select", "[a]", "--select", "-b"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error,
            "orvane: walk.htr: warning: The scene has no nodes of 2 names that --select gives: "
            "\"[a]\", \"-b\". New nodes are made all the same; \"orvane scene\" lists the names. "
            "[apply-select-unknown]\n");
}

// --- Warnings ---

TEST_F(ImportFlagsTest, TheScaleFactorWarningDoesNotStopTheImport) {
  Write("walk.htr", Replaced(SmallMotion(), "ScaleFactor 1.0", "ScaleFactor 2"));
  const ProgramResult result = Import({});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(
      result.error,
      "orvane: walk.htr: warning: ScaleFactor is not 1: \"2\" (line 13, column 13). Nothing is "
      "multiplied by it; --scale multiplies. [htr-scale-factor]\n"
      "orvane: walk.htr: ScaleFactor is not 1.0, this plugin does not support the "
      "ScaleFactor header variable.\n"
      "  Lengths are taken as they stand; --scale multiplies them.\n");
  EXPECT_TRUE(Exists("walk.glb"));
}

TEST_F(ImportFlagsTest, StrictTakesWarningsAsRefusals) {
  Write("walk.htr", Replaced(SmallMotion(), "ScaleFactor 1.0", "ScaleFactor 2"));
  ExpectRefusal(
      {"--strict"},
      "warning: ScaleFactor is not 1: \"2\" (line 13, column 13). Nothing is multiplied by "
      "it; --scale multiplies. [htr-scale-factor]\n"
      "orvane: --strict: nothing was written because of htr-scale-factor\n");
}

TEST_F(ImportFlagsTest, StrictDoesNotMindACleanFile) {
  EXPECT_EQ(Import({"--strict"}).status, 0);
  EXPECT_TRUE(Exists("walk.glb"));
}

// --- Real files ---

TEST_F(ImportFlagsTest, TheExampleIsImported) {
  const std::string file = ORVANE_SOURCE_DIR "/examples/walk.htr";
  const ProgramResult result = Orvane({"import", file, "-o", "walk.glb", "--strict"});
  EXPECT_EQ(result.status, 0);
  const SceneFile scene(folder_.File("walk.glb"));
  EXPECT_THAT(scene.KeyTimes("LeftFoot"), SizeIs(120));
  orvane::HtrDocument document;
  ASSERT_EQ(orvane::ReadHtrFile(document, file, true), "");
  constexpr double kMetersPerMillimeter = 1e-3;
  constexpr double kTolerance_m = 1e-6;
  for (const orvane::HtrSegment& segment : document.segments()) {
    for (const std::size_t frame : {0U, 36U, 119U}) {
      const orvane::Vector3 expected = test::PositionOf(segment, frame);
      EXPECT_THAT(scene.Position(segment.GetName(), frame),
                  ElementsAre(DoubleNear(expected.x() * kMetersPerMillimeter, kTolerance_m),
                              DoubleNear(expected.y() * kMetersPerMillimeter, kTolerance_m),
                              DoubleNear(expected.z() * kMetersPerMillimeter, kTolerance_m)))
          << segment.GetName() << " in frame " << frame;
    }
  }
}

// The recording's own documentation tells where two joints stand at frame 301.
TEST_F(ImportFlagsTest, ARecordingComesOutWhereItsMakersSay) {
  const std::string file = ORVANE_SOURCE_DIR "/../shared/data/walk-31-segments.htr";
  if (!std::filesystem::exists(file)) GTEST_SKIP() << "no recording beside the sources";
  EXPECT_EQ(Orvane({"import", file, "-o", "walk.glb"}).status, 0);
  const SceneFile scene(folder_.File("walk.glb"));
  EXPECT_THAT(
      scene.Position("LeftFoot", 300),
      ElementsAre(DoubleNear(0.0602, 6e-5), DoubleNear(0.0699, 6e-5), DoubleNear(0.7801, 6e-5)));
  EXPECT_THAT(
      scene.Position("RightHand", 300),
      ElementsAre(DoubleNear(-0.1953, 6e-5), DoubleNear(0.7120, 6e-5), DoubleNear(0.7291, 6e-5)));
}

// --- The module ---

TEST_F(ImportFlagsTest, AModuleThatIsMissingIsNamed) {
  const ProgramResult result = Import({"--module", "nowhere.so"});
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, testing::StartsWith("orvane: nowhere.so "));
}

TEST_F(ImportFlagsTest, FilesOfAnotherKindHaveNoImporter) {
  Write("walk.txt", SmallMotion());
  const ProgramResult result = Orvane({"import", "walk.txt", "-o", "walk.glb"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error,
            "orvane: walk.txt: the plug-in has no importer for files of this kind\n"
            "  --as htr or --as trc tells what it is.\n");
}

TEST_F(ImportFlagsTest, AnExtensionIsAddedToANameWithoutOne) {
  EXPECT_EQ(Orvane({"import", "walk", "-o", "walk.glb"}).status, 0);
}

}  // namespace
