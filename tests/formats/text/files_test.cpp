#include "formats/text/files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "tests/support/temporary_folder.h"

namespace orvane {
namespace {

TEST(WithExtension, KeepsANameWhoseFourthCharacterFromTheEndIsAFullStop) {
  for (const char* name : {"walk.htr", "walk.txt", "walk.HTR", "walk....", ".htr", "a.b/.abc"}) {
    EXPECT_EQ(WithExtension(name, ".htr"), name);
  }
}

TEST(WithExtension, AppendsToEveryOtherName) {
  EXPECT_EQ(WithExtension("walk", ".htr"), "walk.htr");
  EXPECT_EQ(WithExtension("walk.ab", ".htr"), "walk.ab.htr");
  EXPECT_EQ(WithExtension("walk.html", ".htr"), "walk.html.htr");
  EXPECT_EQ(WithExtension("walk", ".TRC"), "walk.TRC");
}

TEST(WithExtension, AppendsToNamesShorterThanAnExtension) {
  EXPECT_EQ(WithExtension("", ".htr"), ".htr");
  EXPECT_EQ(WithExtension("a", ".htr"), "a.htr");
  EXPECT_EQ(WithExtension(".ab", ".htr"), ".ab.htr");
}

class ReadFile : public ::testing::Test {
 protected:
  test::TemporaryFolder folder_;
};

TEST_F(ReadFile, ReturnsAllBytesUnchanged) {
  std::string bytes = "a\r\nb\n";
  bytes += std::string("\0\x1a\xff", 3);
  EXPECT_EQ(ReadFileBytes(folder_.Write("bytes.htr", bytes)), bytes);
}

TEST_F(ReadFile, ReturnsNoBytesOfAnEmptyFile) {
  EXPECT_EQ(ReadFileBytes(folder_.Write("empty.htr", "")), "");
}

TEST_F(ReadFile, ReturnsLargeFilesWhole) {
  const std::string bytes(300001, 'x');
  EXPECT_EQ(ReadFileBytes(folder_.Write("large.htr", bytes)), bytes);
}

TEST_F(ReadFile, TakesNamesInTheSystemsNarrowEncoding) {
  EXPECT_EQ(ReadFileBytes(folder_.Write("l\xc3\xa4uft \xe6\xad\xa9.htr", "x")), "x");
}

TEST_F(ReadFile, FailsWhenThereIsNone) {
  EXPECT_FALSE(ReadFileBytes(folder_.File("missing.htr")).has_value());
  EXPECT_FALSE(ReadFileBytes(folder_.File("no/such/folder.htr")).has_value());
  EXPECT_FALSE(ReadFileBytes("").has_value());
}

TEST_F(ReadFile, FailsOnADirectory) {
  std::filesystem::create_directory(folder_.Path() / "folder.htr");
  EXPECT_FALSE(ReadFileBytes(folder_.File("folder.htr")).has_value());
}

TEST_F(ReadFile, FailsOnANameTooLongForAnyFile) {
  EXPECT_FALSE(ReadFileBytes(folder_.File(std::string(100000, 'x'))).has_value());
}

std::string BytesOf(FileSource& source, std::size_t block) {
  std::string bytes;
  std::string part(block, ' ');
  while (const std::size_t count = source.Read(part)) bytes.append(part, 0, count);
  return bytes;
}

TEST_F(ReadFile, GivesAllBytesInBlocks) {
  std::string bytes(300'001, 'x');
  bytes += std::string("\r\n\0\x1a\xff", 5);
  const std::string name = folder_.Write("large.htr", bytes);
  for (const std::size_t block : {std::size_t{1000}, std::size_t{262144}, std::size_t{1} << 20U}) {
    FileSource source(name);
    ASSERT_TRUE(source.IsOpen());
    EXPECT_EQ(source.Size(), bytes.size());
    EXPECT_EQ(BytesOf(source, block), bytes);
    EXPECT_FALSE(source.HasFailed());
  }
}

TEST_F(ReadFile, GivesNoBlockOfAnEmptyFile) {
  FileSource source(folder_.Write("empty.htr", ""));
  ASSERT_TRUE(source.IsOpen());
  EXPECT_EQ(source.Size(), 0U);
  EXPECT_EQ(BytesOf(source, 10), "");
  EXPECT_FALSE(source.HasFailed());
}

TEST_F(ReadFile, IsNotOpenedWhereThereAreNoBytes) {
  std::filesystem::create_directory(folder_.Path() / "folder.htr");
  for (const std::string& name : {folder_.File("missing.htr"), folder_.File("folder.htr"),
                                  folder_.File(std::string(100'000, 'x')), std::string()}) {
    EXPECT_FALSE(FileSource(name).IsOpen()) << name.substr(0, 100);
  }
}

}  // namespace
}  // namespace orvane
