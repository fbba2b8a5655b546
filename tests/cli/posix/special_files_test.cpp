#include <sys/stat.h>

#include "tests/cli/orvane_test.h"
#include "tests/support/trc_text.h"

// Symbolic links, devices and pipes in the places of files.

namespace {

using test::ProgramResult;
using testing::IsEmpty;

class SpecialFilesTest : public test::OrvaneTest {
 protected:
  SpecialFilesTest() { Write("walk.htr", test::SmallMotion()); }

  void Link(const std::string& target, const std::string& name) const {
    std::filesystem::create_symlink(target, folder_.File(name));
  }

  ProgramResult Import(const std::vector<std::string>& flags = {}) const {
    std::vector<std::string> arguments = {"import", "walk.htr", "-o", "walk.glb"};
    arguments.insert(arguments.end(), flags.begin(), flags.end());
    return Orvane(arguments);
  }

  static void ExpectRefused(const ProgramResult& result, const std::string& complaint) {
    EXPECT_EQ(result.status, 3);
    EXPECT_THAT(result.output, IsEmpty());
    EXPECT_EQ(result.error, "orvane: " + complaint);
  }

  void ExpectUnreadable(const std::string& name) const {
    ExpectRefused(Orvane({"info", name}), name + ": Not a regular file\n");
    ExpectRefused(Orvane({"import", name, "-o", "scene.glb"}), name + ": Not a regular file\n");
    EXPECT_FALSE(Exists("scene.glb"));
  }
};

TEST_F(SpecialFilesTest, ADeviceIsNotRead) {
  Link("/dev/zero", "zero.htr");
  ExpectUnreadable("zero.htr");
}

TEST_F(SpecialFilesTest, APipeThatNobodyWritesToIsNotRead) {
  ASSERT_EQ(mkfifo(folder_.File("pipe.htr").c_str(), 0600), 0);
  ExpectUnreadable("pipe.htr");
}

TEST_F(SpecialFilesTest, ForceWritesThroughASymbolicLink) {
  Write("target.glb", "the old scene");
  Link("target.glb", "walk.glb");
  EXPECT_EQ(Import({"--force"}).status, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(folder_.File("walk.glb")));
  EXPECT_THAT(Read("target.glb"), testing::StartsWith("glTF"));
}

// The plug-in's files are made where they are to lie, because none can be moved to another disk.
TEST_F(SpecialFilesTest, ForceWritesThroughALinkToAnotherDisk) {
  const std::filesystem::path memory = "/dev/shm";
  struct stat here {};
  struct stat there {};
  ASSERT_EQ(stat(folder_.Path().c_str(), &here), 0);
  if (stat(memory.c_str(), &there) != 0 || here.st_dev == there.st_dev) {
    GTEST_SKIP() << "there is no other disk";
  }
  const test::TemporaryFolder other(memory);
  Write("walk.trc", test::TrcText{.markers = {"Head"}, .frames = {{"1\t2\t3"}}}.Text());
  Write("run.trc", Read("walk.trc"));
  for (const char* name : {"walk.htr", "walk.bvk"}) {
    test::WriteFile(other.File(name), "old");
    Link(other.File(name), std::string("link-") + name);
  }
  ASSERT_EQ(Import().status, 0);
  EXPECT_EQ(
      Orvane({"export", "walk.glb", "--select", "Hips", "-o", "link-walk.htr", "--force"}).error,
      "");
  EXPECT_THAT(test::ReadFile(other.File("walk.htr")), testing::StartsWith("# Orvane HTR"));
  EXPECT_EQ(Orvane({"convert", "walk.trc", "-o", "link-walk.bvk", "--force"}).error, "");
  EXPECT_THAT(test::ReadFile(other.File("walk.bvk")), testing::StartsWith("$Comments"));
  test::WriteFile(other.File("walk.bvk"), "old");
  Link(other.File("walk.bvk"), "walk.bvk");
  EXPECT_EQ(Orvane({"convert", "run.trc", "walk.trc", "--force"}).error, "");
  EXPECT_THAT(test::ReadFile(other.File("walk.bvk")), testing::StartsWith("$Comments"));
  EXPECT_THAT(Read("run.bvk"), testing::StartsWith("$Comments"));
}

TEST_F(SpecialFilesTest, ALinkThatLeadsNowhereIsKept) {
  Link("nowhere", "walk.glb");
  ExpectRefused(Import(), "walk.glb: File exists\n  It is kept; --force replaces it.\n");
}

TEST_F(SpecialFilesTest, ADeviceIsNeverReplaced) {
  Link("/dev/full", "walk.glb");
  ExpectRefused(Import(), "walk.glb: Not a regular file\n");
  ExpectRefused(Import({"--force"}), "walk.glb: Not a regular file\n");
}

}  // namespace
