#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "formats/htr/writer.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

// What can stand in the way of a file where there are permissions and devices.

namespace orvane {
namespace {

std::string Write(const std::string& file) {
  HtrDocument document;
  document.AddSegment(HtrSegment("Hips"));
  return WriteHtrFile(document, file);
}

TEST(WritePosixFile, FailsOnAFileThatMayNotBeWritten) {
  const test::TemporaryFolder folder;
  const std::string name = folder.Write("walk.htr", "kept");
  std::filesystem::permissions(name, std::filesystem::perms::owner_read);
  if (std::ofstream(name, std::ios::app).is_open()) GTEST_SKIP() << "this user may write anything";
  EXPECT_EQ(Write(name), "The file could not be opened");
  EXPECT_EQ(test::ReadFile(name), "kept");
}

// Whoever needs to know looks at the file.
TEST(WritePosixFile, DoesNotNoticeAFullDisk) {
  const test::TemporaryFolder folder;
  std::filesystem::create_symlink("/dev/full", folder.Path() / "walk.htr");
  EXPECT_EQ(Write(folder.File("walk.htr")), "");
}

}  // namespace
}  // namespace orvane
