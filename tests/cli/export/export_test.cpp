#include <filesystem>

#include "host/gltf/writer.h"
#include "tests/cli/orvane_test.h"
#include "tests/support/bone_nodes.h"
#include "tests/support/user_settings.h"

namespace {

using test::ProgramResult;
using test::Replaced;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

// A scene file "scene.glb" with the small skeleton, imported by the program.
class ExportTest : public test::OrvaneTest {
 protected:
  ExportTest() { MakeScene(test::SmallMotion()); }

  void MakeScene(const std::string& motion, const std::vector<std::string>& flags = {}) const {
    Write("in.htr", motion);
    std::vector<std::string> arguments = {"import", "in.htr", "-o", "scene.glb", "--force"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    EXPECT_EQ(Orvane(arguments).status, 0);
    std::filesystem::remove(folder_.File("in.htr"));
  }

  static std::vector<std::string> Arguments(const std::vector<std::string>& flags,
                                            const std::string& select = "Hips",
                                            const std::string& output = "out.htr") {
    std::vector<std::string> arguments = {"export", "scene.glb", "-o", output};
    if (!select.empty()) arguments.insert(arguments.end(), {"--select", select});
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return arguments;
  }
  ProgramResult Export(const std::vector<std::string>& flags = {},
                       const std::string& select = "Hips",
                       const std::string& output = "out.htr") const {
    return Orvane(Arguments(flags, select, output));
  }

  // The file that an export with these flags makes.
  std::string Exported(const std::vector<std::string>& flags) const {
    std::vector<std::string> all = flags;
    all.emplace_back("--force");
    const ProgramResult result = Export(all);
    EXPECT_EQ(result.status, 0) << result.error;
    EXPECT_THAT(result.error, IsEmpty());
    return Read("out.htr");
  }

  void ExpectRefused(const ProgramResult& result, int status, const std::string& error) const {
    EXPECT_EQ(result.status, status);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.error, error);
    EXPECT_THAT(Names(), ElementsAre("scene.glb"));
  }
};

TEST_F(ExportTest, SummarySaysWhatWasMade) {
  const ProgramResult result = Export();
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_EQ(result.output,
            "Exported scene.glb\n"
            "  Segments  2\n"
            "  Frames    1 to 3 at 60 frames per second\n"
            "  File      out.htr (" +
                std::to_string(Read("out.htr").size()) + " bytes)\n");
  EXPECT_THAT(Names(), ElementsAre("out.htr", "scene.glb"));
  EXPECT_THAT(Read("out.htr"), EndsWith("[EndOfFile]\r\n"));
}

TEST_F(ExportTest, QuietSaysNothing) {
  const ProgramResult result = Export({"--quiet"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output + result.error, IsEmpty());
}

TEST_F(ExportTest, WhatComesBackIsTheMotionThatWasImported) {
  EXPECT_EQ(Export().status, 0);
  Write("in.htr", test::SmallMotion());
  EXPECT_EQ(Orvane({"compare", "in.htr", "out.htr"}).status, 0);
}

TEST_F(ExportTest, ADummyOfTheSceneStandsForItsSkeleton) {
  EXPECT_EQ(Export({}, "in").status, 0);
  EXPECT_THAT(Read("out.htr"), HasSubstr("\r\nHips\tGLOBAL\r\nSpine\tHips\r\n"));
}

TEST_F(ExportTest, ABranchOfASkeletonIsExportedByItself) {
  EXPECT_EQ(Export({}, "Spine").status, 0);
  EXPECT_THAT(Read("out.htr"), HasSubstr("\r\nSpine\tGLOBAL\r\n[BasePosition]\r\n"));
}

// --- Flags ---

TEST_F(ExportTest, EveryFlagOfTheDialogDoesItsPart) {
  const std::string plain = Exported({});
  EXPECT_EQ(Exported({"--saved-pose", "--animation", "--parent-transforms", "--slider", "--offset",
                      "0", "--scale", "1"}),
            plain);
  EXPECT_THAT(Exported({"--no-animation"}), HasSubstr("\r\nNumFrames 1\r\n"));
  EXPECT_THAT(Exported({"--range", "2:3"}),
              testing::AllOf(HasSubstr("\r\nNumFrames 2\r\n"), HasSubstr("\r\n2\t10.000000\t")));
  EXPECT_THAT(Exported({"--offset", "100"}), HasSubstr("\r\n101\t0.000000\t"));
  EXPECT_THAT(Exported({"--scale", "2"}), HasSubstr("\t501.000000\r\n"));
  EXPECT_THAT(plain, HasSubstr("\r\nHips\t0.000000\t900.000000\t"));
}

TEST_F(ExportTest, TheCurrentPoseIsThatOfTheScenesTime) {
  // The scene stands at tick 0, before the first key: the first frame is the base.
  EXPECT_THAT(Exported({"--current-pose"}), HasSubstr("\r\n2\t10.000000\t"));
  MakeScene(Replaced(test::SmallMotion(), "1 0 0 0 0 0 0 1\n2 10", "1 5 0 0 0 0 0 1\n2 10"));
  EXPECT_THAT(Exported({"--current-pose"}), HasSubstr("\r\nHips\t5.000000\t900.000000\t"));
  EXPECT_THAT(Exported({"--saved-pose"}), HasSubstr("\r\nHips\t0.000000\t900.000000\t"));
}

TEST_F(ExportTest, WithoutParentTransformsTheRootIsRelativeToItsParent) {
  EXPECT_EQ(Exported({"--current-pose", "--no-parent-transforms"}), Exported({"--current-pose"}));
}

TEST_F(ExportTest, AUserSettingStaysForTheNextExport) {
  EXPECT_EQ(Export({"--settings", "user", "--offset", "10", "--quiet"}).status, 0);
  const ProgramResult result = Export({"--settings", "user", "--force"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, HasSubstr("Frames    11 to 13 at"));
  EXPECT_THAT(Export({"--force"}).output, HasSubstr("Frames    1 to 3 at"));
}

struct WrongUsage {
  std::vector<std::string> arguments;
  std::string error;
};

TEST_F(ExportTest, WrongFlagsAreExplained) {
  const std::string help = "\n  \"orvane export --help\" lists what there is.\n";
  const std::vector<WrongUsage> cases = {
      {{"export", "scene.glb"}, "orvane: --output is required" + help},
      {{"export", "scene.glb", "-o", "out.trc"},
       "orvane: --output: out.trc does not end in .htr" + help},
      {Arguments({"--range", "3"}), "orvane: --range: FROM:TO is expected, not 3" + help},
      {Arguments({"--saved-pose", "--current-pose"}),
       "orvane: --saved-pose excludes --current-pose" + help},
      {Arguments({"--slider", "--range", "1:2"}), "orvane: --slider excludes --range" + help},
  };
  for (const WrongUsage& its : cases) ExpectRefused(Orvane(its.arguments), 2, its.error);
}

// --- Refusals of the plug-in ---

TEST_F(ExportTest, NothingSelected) {
  ExpectRefused(
      Export({}, ""), 1,
      "orvane: scene.glb: Please select the root bone of the skeleton you wish to export\n"
      "  --select NAME selects a bone; \"orvane scene SCENE\" lists the names.\n");
}

TEST_F(ExportTest, ANameThatNobodyBears) {
  ExpectRefused(Export({}, "Nobody"), 1,
                "orvane: scene.glb: error: The scene has no node of the name that --select gives: "
                "\"Nobody\". Nothing is exported; \"orvane scene\" lists the names. "
                "[export-select-unknown]\n"
                "orvane: scene.glb: nothing was written because of export-select-unknown\n");
  ExpectRefused(
      Export({"--no-report"}, "Nobody"), 1,
      "orvane: --select: nothing in the scene is named Nobody\n"
      "orvane: scene.glb: Please select the root bone of the skeleton you wish to export\n"
      "  --select NAME selects a bone; \"orvane scene SCENE\" lists the names.\n");
}

TEST_F(ExportTest, ScaleZero) {
  ExpectRefused(Export({"--scale", "0"}), 1,
                "orvane: scene.glb: Please choose a non-zero scale factor.\n"
                "  --scale takes a number that is not 0, such as 0.1.\n");
}

TEST_F(ExportTest, ARangeOutsideTheAnimationRange) {
  const std::string advice = "\n  The range must lie within the animation range of the scene.\n";
  ExpectRefused(
      Export({"--range", "0:3"}), 1,
      "orvane: scene.glb: Please choose a start frame equal to or greater than 1." + advice);
  for (const char* range : {"1:4", "1:2147483647"}) {
    ExpectRefused(
        Export({"--range", range}), 1,
        "orvane: scene.glb: Please choose an end frame less than or equal to 3." + advice);
  }
}

TEST_F(ExportTest, AnEmptyRange) {
  ExpectRefused(Export({"--range", "3:2"}), 1,
                "orvane: scene.glb: Please choose a start frame that is less than the end frame.\n"
                "  Is --range in order, and does the animation range of the scene end after it "
                "starts?\n");
}

TEST_F(ExportTest, ASceneFileThatIsNone) {
  Write("scene.glb", "no scene");
  ExpectRefused(Export(), 1,
                "orvane: scene.glb: The file is no glTF file, or it is damaged or cut short.\n");
  std::filesystem::remove(folder_.File("scene.glb"));
  const ProgramResult result = Export();
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: scene.glb: No such file or directory\n");
}

// --- Names ---

TEST_F(ExportTest, ANameThatSeveralNodesBearMeansTheFirst) {
  Write("Hips.htr", test::SmallMotion());
  EXPECT_EQ(Orvane({"import", "Hips.htr", "-o", "scene.glb", "--force"}).status, 0);
  std::filesystem::remove(folder_.File("Hips.htr"));
  const std::string warning =
      "orvane: --select: 2 nodes of the scene are named Hips\n"
      "  The first is taken, in the order of \"orvane scene\".\n";
  ExpectRefused(Export({"--strict"}), 1,
                warning + "orvane: --strict: nothing was written because of this\n");
  const ProgramResult result = Export();
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, warning);
  EXPECT_THAT(Read("out.htr"), HasSubstr("\r\nHips\tGLOBAL\r\nSpine\tHips\r\n"));
}

// The importer makes a bone of this name from a file whose end it does not reach.
TEST_F(ExportTest, ABoneWhoseNameMeansSomethingInTheFileIsRefused) {
  std::string motion = test::SmallMotion();
  for (int i = 0; i < 2; ++i) motion = Replaced(motion, "\nSpine ", "\nSpine]2 ");
  MakeScene(Replaced(motion, "[Spine]\n", "[Spine]2]\n"));
  ExpectRefused(Export({"--no-report"}), 1,
                "orvane: out.htr: The file would not read back: a name cannot stand in it\n"
                "  A tab, #, ] or a [ at its start in the name of a bone, and names that the file "
                "has a use for, such as GLOBAL and EndOfFile, mean something else there.\n");
}

// What no import makes: scenes with such names.
TEST_F(ExportTest, NoNameGoesThroughThatTheFileReadsOtherwise) {
  const std::vector<std::string> names = {
      "Arm\tx", "Other\tArm", "#Arm",    "Arm#2",        "[Arm",           "Arm]2", "GLOBAL",
      "Header", "EndOfFile",  "Arm\r\n", "1\t2\r\n3\t4", "Arm\n[Hips]\n1", "\r\n5", "BasePosition"};
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    host::Scene scene;
    host::Node& hips = test::AddBone(scene, "Hips");
    host::Node& arm = test::AddBone(scene, name, &hips);
    test::AddBone(scene, "Hand", &arm);
    Write("scene.glb", host::gltf::WriteScene(scene, {}).bytes);
    const ProgramResult result = Export({"--range", "0:2", "--no-report"});
    EXPECT_EQ(result.status, 1);
    EXPECT_THAT(result.error, StartsWith("orvane: out.htr: The file would not read back: "));
    EXPECT_THAT(Names(), ElementsAre("scene.glb"));
  }
}

TEST_F(ExportTest, ANameMayLookLikeANumber) {
  for (const std::string& name :
       std::vector<std::string>{"5", "-1", "0.25", "1e9", "L\xC3\xA4ufer"}) {
    host::Scene scene;
    host::Node& hips = test::AddBone(scene, "Hips");
    test::AddBone(scene, "7", &test::AddBone(scene, name, &hips));
    Write("scene.glb", host::gltf::WriteScene(scene, {}).bytes);
    const ProgramResult result = Export({"--range", "0:2", "--no-report", "--force"});
    EXPECT_EQ(result.status, 0) << name << result.error;
    EXPECT_THAT(result.output, HasSubstr("  Segments  3\n"));
  }
}

// --- Numbers ---

TEST_F(ExportTest, ALengthTooLargeIsNotWritten) {
  Write("out.htr", "the old motion");
  const ProgramResult result = Export({"--scale", "1e999", "--force"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error,
            "orvane: out.htr: A number of the skeleton is not finite\n"
            "  Is --scale or a length in the scene too large?\n");
  EXPECT_EQ(Read("out.htr"), "the old motion");
  EXPECT_THAT(Names(), ElementsAre("out.htr", "scene.glb"));
}

TEST_F(ExportTest, BonesOfLength0AreExported) {
  MakeScene(Replaced(test::SmallMotion(), "250.5", "0"));
  const std::string text = Exported({});
  EXPECT_THAT(text, HasSubstr("\r\nSpine\t0.000000\t100.000000\t0.000000\t0.000000\t"));
  EXPECT_THAT(text, testing::Not(HasSubstr("nan")));
  EXPECT_THAT(text, testing::Not(HasSubstr("inf")));
}

// --- Output ---

TEST_F(ExportTest, TheNameIsCompletedAsTheWriterDoesIt) {
  EXPECT_EQ(Export({"--quiet"}, "Hips", "out").status, 0);
  EXPECT_EQ(Export({"--quiet"}, "Hips", "o.ht").status, 0);
  EXPECT_EQ(Export({"--quiet"}, "Hips", "BIG.HTR").status, 0);
  EXPECT_THAT(Names(), ElementsAre("BIG.HTR", "o.ht.htr", "out.htr", "scene.glb"));
}

// The end of a folder's name is not that of the file's.
TEST_F(ExportTest, AFolderWithADotDoesNotCompleteTheName) {
  std::filesystem::create_directory(folder_.File("x.d"));
  EXPECT_EQ(Export({"--quiet"}, "Hips", "x.d/a").status, 0);
  EXPECT_THAT(test::NamesIn(folder_.Path() / "x.d"), ElementsAre("a.htr"));
}

TEST_F(ExportTest, AnExistingFileIsKept) {
  Write("out.htr", "the old motion");
  const ProgramResult result = Export();
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.error, "orvane: out.htr: File exists\n  It is kept; --force replaces it.\n");
  EXPECT_EQ(Read("out.htr"), "the old motion");
}

TEST_F(ExportTest, ForceReplacesIt) {
  Write("out.htr", "the old motion");
  EXPECT_EQ(Export({"--force"}).status, 0);
  EXPECT_THAT(Read("out.htr"), StartsWith("# Orvane HTR"));
}

TEST_F(ExportTest, ForceDoesNotReplaceTheScene) {
  std::filesystem::rename(folder_.File("scene.glb"), folder_.File("scene.htr"));
  const std::string scene = Read("scene.htr");
  for (const char* flag : {"--force", "--quiet"}) {
    const ProgramResult result =
        Orvane({"export", "scene.htr", "-o", "./scene", "--select", "Hips", flag});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.error, "orvane: ./scene.htr: is an input, and would be an output too\n");
  }
  EXPECT_EQ(Read("scene.htr"), scene);
}

TEST_F(ExportTest, ForceKeepsTheOldFileWhenTheExportIsRefused) {
  Write("out.htr", "the old motion");
  EXPECT_EQ(Export({"--force", "--scale", "0"}).status, 1);
  EXPECT_EQ(Read("out.htr"), "the old motion");
  EXPECT_THAT(Names(), ElementsAre("out.htr", "scene.glb"));
}

TEST_F(ExportTest, AMissingFolderIsNamed) {
  ExpectRefused(Export({}, "Hips", "nowhere/out.htr"), 3,
                "orvane: nowhere/out.htr: nowhere: No such file or directory\n");
}

// --- Interruption, with a module of the tests in the plug-in's place ---

TEST_F(ExportTest, AnInterruptionLeavesNothingBehind) {
  for (const char* name : {"interrupt.htr", "interrupt-twice.htr"}) {
    ExpectRefused(Export({"--module", test::HurriedModule()}, "Hips", name), 130,
                  "orvane: interrupted; nothing was written\n");
  }
}

TEST_F(ExportTest, ARefusalWithoutAnyReasonIsSaidToBeOne) {
  ExpectRefused(Export({"--module", test::HurriedModule()}, "Hips", "silent.htr"), 1,
                "orvane: scene.glb: The plug-in gave up without a message\n");
}

TEST_F(ExportTest, APluginThatOnlySaysThatItHasWrittenIsNotBelieved) {
  ExpectRefused(Export({"--module", test::HurriedModule()}, "Hips", "nothing.htr"), 3,
                "orvane: nothing.htr: could not be written completely\n  Is the disk full?\n");
}

// --- Numbers of frames ---

TEST_F(ExportTest, FrameNumbersThatAFileCannotHoldAreRefused) {
  ExpectRefused(Export({"--offset", "2147483645"}), 1,
                "orvane: --offset: 2147483645 would give frame 3 the number 2147483648, and "
                "2147483647 is the last that a file can have\n");
  ExpectRefused(Export({"--offset", "2147483647", "--range", "2:3"}), 1,
                "orvane: --offset: 2147483647 would give frame 3 the number 2147483650, and "
                "2147483647 is the last that a file can have\n");
  EXPECT_EQ(Export({"--offset", "2147483644", "--quiet"}).status, 0);
  EXPECT_THAT(Read("out.htr"), HasSubstr("\r\n2147483647\t20.000000\t"));
}

TEST_F(ExportTest, SoAreThoseBelowTheLeast) {
  MakeScene(Replaced(test::SmallMotion(), "[Hips]\n1 ", "[Hips]\n-1 "));
  ExpectRefused(Export({"--offset", "-2147483648"}), 1,
                "orvane: --offset: -2147483648 would give frame -1 the number -2147483649, and "
                "-2147483648 is the first that a file can have\n");
  EXPECT_EQ(Export({"--offset", "-2147483647", "--quiet"}).status, 0);
}

TEST_F(ExportTest, TheOffsetThatWasChosenLastCountsToo) {
  const test::NoUserSettings none(folder_.File("config"));
  EXPECT_EQ(Export({"--settings", "user", "--offset", "2147483644", "--quiet"}).status, 0);
  MakeScene(Replaced(test::SmallMotion(), "NumFrames 3", "NumFrames 4"));
  EXPECT_EQ(Export({"--settings", "user", "--force"}).error,
            "orvane: --offset: 2147483644 would give frame 4 the number 2147483648, and "
            "2147483647 is the last that a file can have\n");
  EXPECT_EQ(Export({"--settings", "user", "--force", "--offset", "0"}).status, 0);
}

TEST_F(ExportTest, WithoutFramesAnyOffsetIsTaken) {
  EXPECT_EQ(Export({"--offset", "2147483647", "--no-animation"}).status, 0);
}

// --- Ranges ---

TEST_F(ExportTest, AnAnimationRangeFarBeyondTheKeysIsRefused) {
  // Two keys of one bone each, and the animation range of a million frames beyond them.
  MakeScene(Replaced(test::SmallMotion(), "NumFrames 3", "NumFrames 1000000"),
            {"--range", "1:3", "--offset", "2000000"});
  const std::string error =
      "orvane: scene.glb: There are 2000003 frames to export, but the keys of the scene hold 3\n"
      "  --range FROM:TO exports a part of the animation range.\n";
  ExpectRefused(Export(), 1, error);
  EXPECT_EQ(Export({"--quiet", "--range", "1:3"}).status, 0);
  EXPECT_EQ(Export({"--quiet", "--force", "--no-animation"}).status, 0);
}

}  // namespace
