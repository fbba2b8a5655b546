#include "platform/log_file.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "platform/program.h"
#include "tests/platform/windows/process.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace {

using platform::LogFile;
using test::ReadFile;

TEST(LogFilePathTest, IsFixed) {
  EXPECT_EQ(platform::LogFilePath(), "C:\\Program Files\\Orvane\\OrvaneFileIO_Skelder.log");
}

TEST(LogFileTest, AppendsLinesToWhatIsThere) {
  const test::TemporaryFolder folder;
  const std::string path = folder.Write("log", "before\r\n");
  const auto log = LogFile::Open(path);
  ASSERT_NE(log, nullptr);
  log->AppendLine("Title\tone");
  log->AppendLine("");
  EXPECT_EQ(ReadFile(path), "before\r\nTitle\tone\r\n\r\n") << "every line is there at once";
}

// Some messages end with a line end of their own.
TEST(LogFileTest, WritesTheLineEndsOfTextFiles) {
  const test::TemporaryFolder folder;
  LogFile::Open(folder.File("log"))->AppendLine("Title\tone\ntwo\n");
  EXPECT_EQ(ReadFile(folder.File("log")), "Title\tone\r\ntwo\r\n\r\n");
}

TEST(LogFileTest, MakesTheFile) {
  const test::TemporaryFolder folder;
  LogFile::Open(folder.File("log"))->AppendLine("line");
  EXPECT_EQ(ReadFile(folder.File("log")), "line\r\n");
}

TEST(LogFileTest, IsReadAndWrittenByAnotherProcessWhileItIsOpen) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("log");
  const auto log = LogFile::Open(path);
  log->AppendLine("one");
  const std::string program = platform::ProgramFolder() + "\\read_and_append.exe";
  EXPECT_EQ(test::RunProcess('"' + program + "\" log copy two", folder.Path()), 0);
  log->AppendLine("three");
  EXPECT_EQ(ReadFile(folder.File("copy")), "one\r\n");
  EXPECT_EQ(ReadFile(path), "one\r\ntwo\r\nthree\r\n");
}

TEST(LogFileTest, IsNullWhenTheFileCannotBeOpened) {
  const test::TemporaryFolder folder;
  folder.Write("file", "content");
  EXPECT_EQ(LogFile::Open(""), nullptr);
  EXPECT_EQ(LogFile::Open(folder.Path().string()), nullptr);
  EXPECT_EQ(LogFile::Open(folder.File("file/log")), nullptr);
  EXPECT_EQ(LogFile::Open(folder.File("missing/log")), nullptr);
  EXPECT_FALSE(std::filesystem::exists(folder.File("missing"))) << "no folder is made";
}

}  // namespace
