#include "platform/scratch_folder.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace {

using platform::ScratchFolder;
using testing::IsEmpty;
using testing::SizeIs;

// As a process makes it, with a file in it.
void MakeFolder(const test::TemporaryFolder& parent, const std::string& name) {
  std::filesystem::create_directory(parent.File(name));
  std::filesystem::permissions(parent.File(name), std::filesystem::perms::owner_all);
  test::WriteFile(parent.File(name + "/file"), "bytes");
}

bool HoldsAFile(const test::TemporaryFolder& parent, const std::string& name) {
  return std::filesystem::exists(parent.File(name + "/file"));
}

TEST(ScratchFolderTest, IsThereUntilItsEndAndTakesItsFilesAlong) {
  const test::TemporaryFolder parent;
  {
    const ScratchFolder folder(parent.Path().string());
    EXPECT_EQ(folder.Error(), "");
    test::WriteFile(folder.Path() + "/file", "bytes");
    EXPECT_THAT(test::NamesIn(parent.Path()), SizeIs(1));
  }
  EXPECT_THAT(test::NamesIn(parent.Path()), IsEmpty());
}

TEST(ScratchFolderTest, IsItsOwnFolderEachTime) {
  const test::TemporaryFolder parent;
  const ScratchFolder first(parent.Path().string());
  const ScratchFolder second(parent.Path().string());
  EXPECT_NE(first.Path(), second.Path());
}

TEST(ScratchFolderTest, RemovesWhatAKilledProcessHasLeftAndNoMore) {
  const test::TemporaryFolder parent;
  const ScratchFolder in_use(parent.Path().string());
  MakeFolder(parent, "~orvane-folder-4194305-0");
  MakeFolder(parent, "~orvane-folder-4194305-2147483647");
  MakeFolder(parent, "somebody's");
  const ScratchFolder next(parent.Path().string());
  EXPECT_THAT(test::NamesIn(parent.Path()),
              testing::UnorderedElementsAre(
                  std::filesystem::path(in_use.Path()).filename().string(),
                  std::filesystem::path(next.Path()).filename().string(), "somebody's"));
}

TEST(ScratchFolderTest, RemovesNothingOfAnotherName) {
  const test::TemporaryFolder parent;
  const std::vector<std::string> names = {"~orvane-folder-",
                                          "~orvane-folder-+4194305-0",
                                          "~orvane-folder-0-0",
                                          "~orvane-folder-04194305-0",
                                          "~orvane-folder-4194305",
                                          "~orvane-folder-4194305-",
                                          "~orvane-folder-4194305--1",
                                          "~orvane-folder-4194305-0 of 2026",
                                          "~orvane-folder-4194305-00",
                                          "~orvane-folder-99999999999999999999-0",
                                          "~orvane-folder-Photos of 2026",
                                          "~orvane-folders-4194305-0"};
  for (const std::string& name : names) MakeFolder(parent, name);
  { const ScratchFolder folder(parent.Path().string()); }
  EXPECT_THAT(test::NamesIn(parent.Path()), testing::UnorderedElementsAreArray(names));
  for (const std::string& name : names) EXPECT_TRUE(HoldsAFile(parent, name)) << name;
}

TEST(ScratchFolderTest, RemovesNoFileOfSuchAName) {
  const test::TemporaryFolder parent;
  test::WriteFile(parent.File("~orvane-folder-4194305-0"), "mine");
  { const ScratchFolder folder(parent.Path().string()); }
  EXPECT_THAT(test::NamesIn(parent.Path()), SizeIs(1));
}

TEST(ScratchFolderTest, TellsWhyItCannotBeMade) {
  const test::TemporaryFolder parent;
  EXPECT_EQ(ScratchFolder(parent.File("missing")).Error(), "No such file or directory");
  const std::string file = parent.Write("file", "");
  EXPECT_EQ(ScratchFolder(file).Error(), "Not a directory");
}

}  // namespace
