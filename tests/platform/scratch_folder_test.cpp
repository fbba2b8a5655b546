#include "platform/scratch_folder.h"

#include <gmock/gmock.h>

#include <optional>

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace {

using platform::ScratchFolder;
using testing::IsEmpty;
using testing::SizeIs;

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
  std::filesystem::create_directories(parent.Path() / "~orvane-folder-1-0/inner");
  std::filesystem::create_directory(parent.Path() / "somebody's");
  const ScratchFolder next(parent.Path().string());
  EXPECT_THAT(test::NamesIn(parent.Path()),
              testing::UnorderedElementsAre(
                  std::filesystem::path(in_use.Path()).filename().string(),
                  std::filesystem::path(next.Path()).filename().string(), "somebody's"));
}

TEST(ScratchFolderTest, TellsWhyItCannotBeMade) {
  const test::TemporaryFolder parent;
  EXPECT_EQ(ScratchFolder(parent.File("missing")).Error(), "No such file or directory");
  const std::string file = parent.Write("file", "");
  EXPECT_EQ(ScratchFolder(file).Error(), "Not a directory");
}

}  // namespace
