#include "plugin/text/files.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>

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
  ReadFile() {
    const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
    folder_ =
        std::filesystem::path(::testing::TempDir()) / ("orvane_files_" + std::string(test->name()));
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  ~ReadFile() override { std::filesystem::remove_all(folder_); }

  std::string Name(const std::string& file) const { return (folder_ / file).string(); }

  std::string Write(const std::string& file, const std::string& bytes) const {
    std::ofstream(folder_ / file, std::ios::binary) << bytes;
    return Name(file);
  }

  std::filesystem::path folder_;
};

TEST_F(ReadFile, ReturnsAllBytesUnchanged) {
  std::string bytes = "a\r\nb\n";
  bytes += std::string("\0\x1a\xff", 3);
  EXPECT_EQ(ReadFileBytes(Write("bytes.htr", bytes)), bytes);
}

TEST_F(ReadFile, ReturnsNoBytesOfAnEmptyFile) {
  EXPECT_EQ(ReadFileBytes(Write("empty.htr", "")), "");
}

TEST_F(ReadFile, ReturnsLargeFilesWhole) {
  const std::string bytes(300001, 'x');
  EXPECT_EQ(ReadFileBytes(Write("large.htr", bytes)), bytes);
}

TEST_F(ReadFile, TakesNamesInUtf8) {
  EXPECT_EQ(ReadFileBytes(Write("l\xc3\xa4uft \xe6\xad\xa9.htr", "x")), "x");
}

TEST_F(ReadFile, FailsWhenThereIsNone) {
  EXPECT_FALSE(ReadFileBytes(Name("missing.htr")).has_value());
  EXPECT_FALSE(ReadFileBytes(Name("no/such/folder.htr")).has_value());
  EXPECT_FALSE(ReadFileBytes("").has_value());
}

TEST_F(ReadFile, FailsOnADirectory) {
  std::filesystem::create_directory(folder_ / "folder.htr");
  EXPECT_FALSE(ReadFileBytes(Name("folder.htr")).has_value());
}

TEST_F(ReadFile, FailsOnADeviceThatNeverEnds) {
  if (!std::filesystem::exists("/dev/zero")) GTEST_SKIP() << "no such device here";
  EXPECT_FALSE(ReadFileBytes("/dev/zero").has_value());
}

TEST_F(ReadFile, FailsOnANameTooLongForAnyFile) {
  EXPECT_FALSE(ReadFileBytes(Name(std::string(100000, 'x'))).has_value());
}

TEST_F(ReadFile, FailsWithoutPermission) {
  const std::string name = Write("closed.htr", "x");
  std::filesystem::permissions(name, std::filesystem::perms::none);
  if (std::ifstream(name).is_open()) GTEST_SKIP() << "this user may read everything";
  EXPECT_FALSE(ReadFileBytes(name).has_value());
}

}  // namespace
}  // namespace orvane
