#include "plugin/utilities/file_dialogs.h"

#include <gmock/gmock.h>

namespace orvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

// A buffer that holds `texts`, in which "|" stands for NUL, and more room behind.
std::string Buffer(std::string texts) {
  for (char& character : texts) {
    if (character == '|') character = '\0';
  }
  return texts + std::string(10, '\0');
}

TEST(ReadChosenFilesTest, PutsTheFolderBeforeEachName) {
  std::string buffer = Buffer("/takes|walk.trc|run.trc||");
  const FilesInFolder chosen = ReadChosenFiles(buffer, 7, '/');
  EXPECT_EQ(chosen.folder, "/takes");
  EXPECT_THAT(chosen.paths, ElementsAre("/takes/walk.trc", "/takes/run.trc"));
}

TEST(ReadChosenFilesTest, SplitsThePathOfOneFile) {
  std::string buffer = Buffer("C:\\takes\\walk.trc||");
  const FilesInFolder chosen = ReadChosenFiles(buffer, 9, '\\');
  EXPECT_EQ(chosen.folder, "C:\\takes");
  EXPECT_THAT(chosen.paths, ElementsAre("C:\\takes\\walk.trc"));
}

TEST(ReadChosenFilesTest, SplitsThePathOfOneFileInTheRoot) {
  std::string buffer = Buffer("/walk.trc||");
  const FilesInFolder chosen = ReadChosenFiles(buffer, 1, '/');
  EXPECT_EQ(chosen.folder, "");
  EXPECT_THAT(chosen.paths, ElementsAre("/walk.trc"));
}

TEST(ReadChosenFilesTest, KeepsNamesAsTheyAre) {
  std::string buffer = Buffer("/a b|50%d \"x\".trc|\xE9\xFF.trc||");
  const FilesInFolder chosen = ReadChosenFiles(buffer, 5, '/');
  EXPECT_THAT(chosen.paths, ElementsAre("/a b/50%d \"x\".trc", "/a b/\xE9\xFF.trc"));
}

TEST(ReadChosenFilesTest, FindsNoFilesInAFolderAlone) {
  std::string buffer = Buffer("/takes||");
  const FilesInFolder chosen = ReadChosenFiles(buffer, 7, '/');
  EXPECT_EQ(chosen.folder, "/takes");
  EXPECT_THAT(chosen.paths, IsEmpty());
}

TEST(ReadChosenFilesTest, TakesTheFirstThousand) {
  std::string texts = "/takes|";
  for (int number = 0; number < 1200; ++number) texts += std::to_string(number) + ".trc|";
  std::string buffer = Buffer(texts + "|");
  const FilesInFolder chosen = ReadChosenFiles(buffer, 7, '/');
  ASSERT_EQ(chosen.paths.size(), 1000u);
  EXPECT_EQ(chosen.paths.back(), "/takes/999.trc");
}

TEST(ReadChosenFilesTest, StaysWithinTheBuffer) {
  for (const std::string text : {"", "a", "/a", "/takes/walk.trc"}) {
    for (std::size_t offset = 0; offset < text.size() + 3; ++offset) {
      std::string buffer = text;
      EXPECT_LE(ReadChosenFiles(buffer, offset, '/').paths.size(), 1u);
    }
  }
}

}  // namespace
}  // namespace orvane
