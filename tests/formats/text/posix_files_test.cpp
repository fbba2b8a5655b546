#include <gtest/gtest.h>
#include <sys/stat.h>

#include <array>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>

#include "formats/text/files.h"
#include "tests/support/temporary_folder.h"

// What can stand in the place of a file where there are devices and permissions to read.

namespace orvane {
namespace {

TEST(ReadPosixFile, FailsOnADeviceThatNeverEnds) {
  EXPECT_FALSE(ReadFileBytes("/dev/zero").has_value());
}

TEST(ReadPosixFile, FailsWithoutPermission) {
  const test::TemporaryFolder folder;
  const std::string name = folder.Write("closed.htr", "x");
  std::filesystem::permissions(name, std::filesystem::perms::none);
  if (std::ifstream(name).is_open()) GTEST_SKIP() << "this user may read everything";
  EXPECT_FALSE(ReadFileBytes(name).has_value());
}

TEST(ReadPosixFile, GivesAPipeWholeWhoseSizeIsKnownAtItsEndOnly) {
#ifdef __EMSCRIPTEN__
  GTEST_SKIP() << "nobody can write while another reads";
#endif
  const test::TemporaryFolder folder;
  const std::string name = folder.File("pipe.htr");
  ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
  std::thread writer([&name] { std::ofstream(name) << "some bytes"; });
  FileSource source(name);
  writer.join();
  ASSERT_TRUE(source.IsOpen());
  EXPECT_EQ(source.Size(), 10U);
  std::array<char, 4> block{};
  std::string bytes;
  while (const std::size_t count = source.Read(block)) bytes.append(block.data(), count);
  EXPECT_EQ(bytes, "some bytes");
}

}  // namespace
}  // namespace orvane
