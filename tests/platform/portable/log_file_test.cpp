#include "platform/log_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string>

#include "tests/support/environment_variable.h"
#include "tests/support/temporary_folder.h"

namespace platform {
namespace {

using test::EnvironmentVariable;

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

struct PathCase {
  std::optional<std::string> state_home;
  std::optional<std::string> home;
  std::string path;
};

TEST(LogFilePathTest, LiesInTheStateFolderOfTheUser) {
  const PathCase cases[] = {
      {"/state", "/home/ann", "/state/orvane/OrvaneFileIO_Skelder.log"},
      {"/state", std::nullopt, "/state/orvane/OrvaneFileIO_Skelder.log"},
      {std::nullopt, "/home/ann", "/home/ann/.local/state/orvane/OrvaneFileIO_Skelder.log"},
      {"", "/home/ann", "/home/ann/.local/state/orvane/OrvaneFileIO_Skelder.log"},
      {"relative", "/home/ann", "/home/ann/.local/state/orvane/OrvaneFileIO_Skelder.log"},
      {std::nullopt, std::nullopt, ""},
      {std::nullopt, "relative", ""},
  };
  for (const PathCase& test_case : cases) {
    const EnvironmentVariable state_home("XDG_STATE_HOME", test_case.state_home);
    const EnvironmentVariable home("HOME", test_case.home);
    EXPECT_EQ(LogFilePath(), test_case.path);
  }
}

TEST(LogFileTest, AppendsLinesToWhatIsThere) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("log");
  std::ofstream(path) << "before\n";
  const auto log = LogFile::Open(path);
  ASSERT_NE(log, nullptr);
  log->AppendLine("Title\tone");
  log->AppendLine("");
  EXPECT_EQ(ContentOf(path), "before\nTitle\tone\n\n") << "every line is there at once";
}

TEST(LogFileTest, MakesTheFileAndItsFolders) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("state/orvane/log");
  LogFile::Open(path)->AppendLine("line");
  EXPECT_EQ(ContentOf(path), "line\n");
}

TEST(LogFileTest, SharesTheFile) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("log");
  const auto log = LogFile::Open(path);
  const auto other = LogFile::Open(path);
  log->AppendLine("one");
  other->AppendLine("two");
  log->AppendLine("three");
  EXPECT_EQ(ContentOf(path), "one\ntwo\nthree\n");
}

TEST(LogFileTest, IsNullWhenTheFileCannotBeOpened) {
  const test::TemporaryFolder folder;
  std::ofstream(folder.File("file")) << "content";
  EXPECT_EQ(LogFile::Open(""), nullptr);
  EXPECT_EQ(LogFile::Open(folder.Path().string()), nullptr);
  EXPECT_EQ(LogFile::Open(folder.File("file/log")), nullptr);
}

TEST(LogFileTest, LosesLinesInSilenceWhenTheDiskIsFull) {
  if (!std::filesystem::exists("/dev/full")) GTEST_SKIP() << "no device that is always full";
  const auto log = LogFile::Open("/dev/full");
  ASSERT_NE(log, nullptr);
  log->AppendLine("one");
  log->AppendLine("two");
}

}  // namespace
}  // namespace platform
