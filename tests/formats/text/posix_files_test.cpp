#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

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

}  // namespace
}  // namespace orvane
