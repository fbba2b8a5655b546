#include <sys/stat.h>

#include "tests/cli/orvane_test.h"
#include "tests/support/posix/program.h"

// What the permissions of files and folders forbid, and what becomes of them.

namespace {

using test::PosixRun;
using test::ProgramResult;
using testing::IsEmpty;

class PermissionsTest : public test::OrvaneTest {
 protected:
  PermissionsTest() { Write("walk.htr", test::SmallMotion()); }

  void MakeFolder(const std::string& name, mode_t permissions) const {
    std::filesystem::create_directory(folder_.File(name));
    SetPermissions(name, permissions);
  }
  void SetPermissions(const std::string& name, mode_t permissions) const {
    ASSERT_EQ(chmod(folder_.File(name).c_str(), permissions), 0);
  }
  mode_t PermissionsOf(const std::string& name) const {
    struct stat status {};
    stat(folder_.File(name).c_str(), &status);
    return status.st_mode & 0777U;
  }

  // Runs the program as somebody whom permissions concern. Expects that it writes nothing and that
  // it complains of `what`.
  void ExpectDenied(const std::vector<std::string>& arguments, const std::string& what) const {
    PosixRun run{Command(arguments)};
    run.unprivileged = true;
    const ProgramResult result = RunProgram(run);
    if (result.status == test::kNotStarted) GTEST_SKIP() << "others may not run the program";
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.error, "orvane: " + what + ": Permission denied\n");
  }
};

TEST_F(PermissionsTest, AMotionThatMayNotBeReadIsSaidToBeOne) {
  SetPermissions("walk.htr", 0);
  ExpectDenied({"info", "walk.htr"}, "walk.htr");
  ExpectDenied({"import", "walk.htr", "-o", "walk.glb"}, "walk.htr");
}

TEST_F(PermissionsTest, AFolderThatMayNotBeReadIsSaidToBeOne) {
  MakeFolder("take", 0);
  ExpectDenied({"check", "take"}, "take");
  SetPermissions("take", 0700);
}

TEST_F(PermissionsTest, AFolderBelowThatMayNotBeReadKeepsNoOtherFromBeingLookedInto) {
  MakeFolder("takes", 0755);
  MakeFolder("takes/open", 0755);
  MakeFolder("takes/shut", 0);
  Write("takes/open/a.htr", test::SmallMotion());
  PosixRun run{Command({"check", "--recursive", "takes"})};
  run.unprivileged = true;
  const ProgramResult result = RunProgram(run);
  SetPermissions("takes/shut", 0700);
  if (result.status == test::kNotStarted) GTEST_SKIP() << "others may not run the program";
  EXPECT_EQ(result.status, 3);
  EXPECT_EQ(result.output, "takes/open/a.htr: clean: 2 segments, 3 frames\n");
  EXPECT_EQ(result.error, "orvane: takes/shut: Permission denied\n");
}

TEST_F(PermissionsTest, AReadOnlyFolderTakesNoScene) {
  MakeFolder("scenes", 0755);
  Write("scenes/old.glb", "the old scene");
  SetPermissions("scenes", 0555);
  for (const std::string output : {"scenes/new.glb", "scenes/old.glb"}) {
    ExpectDenied({"import", "walk.htr", "-o", output, "--force"}, output + ": scenes");
  }
  EXPECT_EQ(Read("scenes/old.glb"), "the old scene");
}

TEST_F(PermissionsTest, AReadOnlyFolderTakesNoMotion) {
  ASSERT_EQ(Orvane({"import", "walk.htr", "-o", "scene.glb"}).status, 0);
  MakeFolder("motions", 0555);
  ExpectDenied({"export", "scene.glb", "--select", "Hips", "-o", "motions/out.htr"},
               "motions/out.htr: motions");
}

TEST_F(PermissionsTest, AReadOnlyFolderTakesNoMarkers) {
  Write("walk.trc", test::ReadFile(ORVANE_SOURCE_DIR "/examples/walk.trc"));
  MakeFolder("out", 0555);
  ExpectDenied({"convert", "walk.trc", "--output-dir", "out"}, "out");
  EXPECT_THAT(test::NamesIn(folder_.Path() / "out"), IsEmpty());
}

// Whoever runs the program: the superuser may write everything.
TEST_F(PermissionsTest, WhatNobodyMayWriteIsNotReplaced) {
  const std::string examples = ORVANE_SOURCE_DIR "/examples/";
  Write("picks", test::ReadFile(examples + "walk.mnm"));
  Write("walk.trc", test::ReadFile(examples + "walk.trc"));
  Write("run.trc", Read("walk.trc"));
  ASSERT_EQ(Orvane({"import", "walk.htr", "-o", "scene.glb"}).status, 0);
  const std::vector<std::vector<std::string>> commands = {
      {"old.glb", "import", "walk.htr", "-o", "old.glb"},
      {"old.htr", "export", "scene.glb", "--select", "Hips", "-o", "old.htr"},
      {"old.bvk", "convert", "walk.trc", "-o", "old.bvk", "--quiet"},
      {"old.mnm", "map", "create", "walk.trc", "--picks", "picks", "-o", "old.mnm"}};
  for (std::vector<std::string> command : commands) {
    const std::string output = command.front();
    command.erase(command.begin());
    Write(output, "mine");
    SetPermissions(output, 0444);
    for (int times = 0; times < 2; ++times) {
      const ProgramResult result = Orvane(command);
      EXPECT_EQ(result.status, 3);
      EXPECT_THAT(result.output, IsEmpty());
      EXPECT_EQ(result.error, "orvane: " + output +
                                  ": it is read-only\n"
                                  "  It is kept, also with --force; make it writable first.\n");
      command.emplace_back("--force");
    }
    EXPECT_EQ(Read(output), "mine");
    EXPECT_EQ(PermissionsOf(output), 0444U);
  }
  Write("ConvertBVKLog.txt", "mine");
  SetPermissions("ConvertBVKLog.txt", 0444);
  EXPECT_EQ(Orvane({"convert", "walk.trc", "run.trc", "--force", "--no-report"}).error,
            "orvane: ConvertBVKLog.txt: it is read-only\n"
            "  It is kept, also with --force; make it writable first.\n");
  EXPECT_EQ(Read("ConvertBVKLog.txt"), "mine");
}

TEST_F(PermissionsTest, AReplacedSceneKeepsThem) {
  Write("walk.glb", "the old scene");
  SetPermissions("walk.glb", 0604);
  EXPECT_EQ(Orvane({"import", "walk.htr", "-o", "walk.glb", "--force"}).status, 0);
  EXPECT_THAT(Read("walk.glb"), testing::StartsWith("glTF"));
  EXPECT_EQ(PermissionsOf("walk.glb"), 0604U);
}

TEST_F(PermissionsTest, AReplacedMotionKeepsThem) {
  ASSERT_EQ(Orvane({"import", "walk.htr", "-o", "scene.glb"}).status, 0);
  SetPermissions("walk.htr", 0604);
  EXPECT_EQ(Orvane({"export", "scene.glb", "--select", "Hips", "-o", "walk.htr", "--force"}).status,
            0);
  EXPECT_THAT(Read("walk.htr"), testing::StartsWith("# Orvane HTR"));
  EXPECT_EQ(PermissionsOf("walk.htr"), 0604U);
}

}  // namespace
