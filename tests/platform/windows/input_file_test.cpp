#include "platform/input_file.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

#include "platform/windows/text.h"
#include "tests/support/temporary_folder.h"

namespace {

using platform::WhyUnreadable;

TEST(WhyUnreadable, IsNothingForAFile) {
  const test::TemporaryFolder folder;
  EXPECT_EQ(WhyUnreadable(folder.Write("walk.htr", "")), "");
}

TEST(WhyUnreadable, TakesNamesWithBlanksAndLettersOfAnyKind) {
  const test::TemporaryFolder folder;
  const std::string path = folder.File("") + "mot d'\xC3\xA9t\xC3\xA9 \xE6\x97\xA5.htr";
  std::ofstream(std::filesystem::path(platform::WideFromUtf8(path))) << "bytes";
  EXPECT_EQ(WhyUnreadable(path), "");
}

TEST(WhyUnreadable, TellsWhatIsThereInPlaceOfAFile) {
  const test::TemporaryFolder folder;
  EXPECT_EQ(WhyUnreadable(folder.Path().string()), "Is a directory");
  EXPECT_EQ(WhyUnreadable(folder.File("missing")), "No such file or directory");
  EXPECT_EQ(WhyUnreadable(folder.File("missing\\walk.htr")), "No such file or directory");
  EXPECT_EQ(WhyUnreadable("NUL"), "Not a regular file");
}

TEST(WhyUnreadable, TellsThatSomebodyElseHasTheFile) {
  const test::TemporaryFolder folder;
  const std::string path = folder.Write("walk.htr", "bytes");
  const HANDLE taken =
      CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(taken, INVALID_HANDLE_VALUE);
  EXPECT_EQ(WhyUnreadable(path), "Device or resource busy");
  CloseHandle(taken);
}

}  // namespace
