#include "tests/cli/orvane_test.h"
#include "tests/support/posix/program.h"
#include "tests/support/trc_text.h"

// A disk that fills up while the program writes, which a limit on the size of files stands for.

namespace {

using test::PosixRun;
using test::ProgramResult;
using testing::ElementsAre;
using testing::IsEmpty;

class FullDiskTest : public test::OrvaneTest {
 protected:
  // Runs the program on a disk that takes so many bytes. Expects its complaint.
  void ExpectFailure(const std::vector<std::string>& arguments, unsigned long bytes,
                     const std::string& complaint) const {
    PosixRun run{Command(arguments)};
    run.largest_file = bytes;
    const ProgramResult result = RunProgram(run);
    EXPECT_EQ(result.status, 3) << bytes;
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.error, "orvane: " + complaint);
  }
};

TEST_F(FullDiskTest, LeavesTheOldSceneAndNoHalfOne) {
  Write("walk.htr", test::SmallMotion());
  Write("walk.glb", "the old scene");
  ExpectFailure({"import", "walk.htr", "-o", "walk.glb", "--force"}, 1000,
                "walk.glb: File too large\n");
  EXPECT_EQ(Read("walk.glb"), "the old scene");
  EXPECT_THAT(Names(), ElementsAre("walk.glb", "walk.htr"));
}

TEST_F(FullDiskTest, LeavesTheOldMotionAndNoHalfOne) {
  Write("walk.htr", test::SmallMotion());
  ASSERT_EQ(Orvane({"import", "walk.htr", "-o", "scene.glb"}).status, 0);
  Write("out.htr", "the old motion");
  ExpectFailure({"export", "scene.glb", "--select", "Hips", "-o", "out.htr", "--force"}, 500,
                "out.htr: could not be written completely\n  Is the disk full?\n");
  EXPECT_EQ(Read("out.htr"), "the old motion");
  EXPECT_THAT(Names(), ElementsAre("out.htr", "scene.glb", "walk.htr"));
}

// The plug-in does not notice that its file was cut short.
TEST_F(FullDiskTest, LeavesNoHalfMarkers) {
  test::TrcText take{.markers = {"Head1"}};
  take.frames.assign(5000, {"1\t2\t3"});
  Write("walk.trc", take.Text());
  PosixRun run{Command({"convert", "walk.trc"})};
  run.largest_file = 100'000;
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error, testing::HasSubstr("The plug-in could not write all of the file"));
  EXPECT_THAT(Names(), ElementsAre("walk.trc"));
}

// The plug-in would convert by a part of it.
TEST_F(FullDiskTest, ConvertsByNoHalfMapping) {
  std::string mapping = "LFHD\twalker:LFHD\n";
  for (int line = 0; line < 500; ++line) mapping += "C7\tmarker" + std::to_string(line) + "\n";
  Write("walker.mnm", mapping);
  Write("walk.trc", test::TrcText{.markers = {"anna:LFHD"}, .frames = {{"1\t2\t3"}}}.Text());
  PosixRun run{Command(
      {"convert", "walk.trc", "--mapping", "walker.mnm", "--names", "subject", "--no-report"})};
  run.largest_file = 5000;
  const ProgramResult result = RunProgram(run);
  EXPECT_EQ(result.status, 3);
  EXPECT_THAT(result.error,
              testing::HasSubstr("orvane: walk.bvk: The mapping for its markers could not be "
                                 "written\n  Is the disk full?\n"));
  EXPECT_THAT(Names(), ElementsAre("walk.trc", "walker.mnm"));
}

// The plug-in's log says that all of them are done.
TEST_F(FullDiskTest, TheLogOfABatchTellsWhatWasNotWritten) {
  test::TrcText take{.markers = {"Head1"}};
  for (const auto& [name, frames] : {std::pair{"a.trc", 1}, {"b.trc", 5000}, {"c.trc", 1}}) {
    take.frames.assign(static_cast<std::size_t>(frames), {"1\t2\t3"});
    Write(name, take.Text());
  }
  PosixRun run{Command({"convert", "a.trc", "b.trc", "c.trc"})};
  run.largest_file = 100'000;
  EXPECT_EQ(RunProgram(run).status, 3);
  EXPECT_THAT(Names(),
              ElementsAre("ConvertBVKLog.txt", "a.bvk", "a.trc", "b.trc", "c.bvk", "c.trc"));
  const std::string folder = std::filesystem::canonical(folder_.Path()).string() + "/";
  EXPECT_THAT(Read("ConvertBVKLog.txt"),
              testing::EndsWith("Processing 3 files...\n"
                                "file: " +
                                folder + "a.trc done.\n" + "file: " + folder + "b.trc done.\n" +
                                "orvane: " + folder +
                                "b.trc was not converted: "
                                "The plug-in could not write all of the file\n" +
                                "file: " + folder + "c.trc done.\n"));
}

// A disk that has no room for the log either.
TEST_F(FullDiskTest, ALogThatIsCutShortIsNotTakenForAFileThatCannotBeMade) {
  const test::TrcText take{.markers = {"Head1"}, .frames = {{"1\t2\t3"}}};
  for (const char* name : {"a.trc", "b.trc"}) Write(name, take.Text());
  for (const unsigned long bytes : {0UL, 110UL}) {
    PosixRun run{Command({"convert", "a.trc", "b.trc", "--quiet"})};
    run.largest_file = bytes;
    const ProgramResult result = RunProgram(run);
    EXPECT_EQ(result.status, 3);
    for (const std::string name : {"a", "b"}) {
      EXPECT_THAT(result.error, testing::HasSubstr("orvane: " + name +
                                                   ".bvk: The plug-in could not write all of its "
                                                   "log\n  Is the disk full?\n"))
          << bytes;
    }
    EXPECT_FALSE(Exists("a.bvk"));
    EXPECT_FALSE(Exists("b.bvk"));
  }
}

// Nor here.
TEST_F(FullDiskTest, LeavesNoHalfMapping) {
  Write("walk.trc", test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.trc"));
  Write("picks", test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.mnm"));
  ASSERT_EQ(Orvane({"map", "create", "walk.trc", "-o", "whole.mnm", "--picks", "picks"}).status, 0);
  const unsigned long whole = Read("whole.mnm").size();
  ASSERT_GT(whole, 200U);
  for (const unsigned long size : {0UL, 200UL, whole - 1}) {
    ExpectFailure({"map", "create", "walk.trc", "-o", "set.mnm", "--picks", "picks", "--quiet"},
                  size,
                  "set.mnm: The plug-in could not write all of the file\n  Is the disk full?\n");
  }
  EXPECT_THAT(Names(), ElementsAre("picks", "walk.trc", "whole.mnm"));
}

TEST_F(FullDiskTest, StandardOutputThatTakesNothingIsAnError) {
  Write("walk.htr", test::SmallMotion());
  for (const auto& arguments : {std::vector<std::string>{"info", "walk.htr"},
                                std::vector<std::string>{"info", "walk.htr", "--json"},
                                std::vector<std::string>{"--help"}}) {
    PosixRun run{Command(arguments)};
    run.output_file = "/dev/full";
    const ProgramResult result = RunProgram(run);
    EXPECT_EQ(result.status, 3);
    EXPECT_EQ(result.error, "orvane: standard output: could not be written\n");
  }
}

}  // namespace
