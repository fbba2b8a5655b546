#include "platform/windows/text.h"

#include <windows.h>
#include <gtest/gtest.h>

namespace {

TEST(WindowsText, GoesBetweenTheEncodings) {
  const std::string utf8 = "caf\xC3\xA9 \xF0\x9F\x98\x80";
  const std::wstring wide = L"caf\u00E9 \U0001F600";
  EXPECT_EQ(platform::WideFromUtf8(utf8), wide);
  EXPECT_EQ(platform::Utf8FromWide(wide), utf8);
  EXPECT_EQ(platform::WideFromUtf8(""), L"");
  EXPECT_EQ(platform::Utf8FromWide(L""), "");
}

TEST(WindowsText, ReplacesWhatIsNoText) {
  EXPECT_EQ(platform::WideFromUtf8("a\xFFz"), L"a\uFFFDz");
}

TEST(WindowsText, TellsErrorsInTheWordsOfTheCLibrary) {
  EXPECT_EQ(platform::ErrorText(ERROR_FILE_NOT_FOUND), "No such file or directory");
  EXPECT_EQ(platform::ErrorText(ERROR_FILE_EXISTS), "File exists");
  EXPECT_EQ(platform::ErrorText(ERROR_ACCESS_DENIED), "Permission denied");
  EXPECT_EQ(platform::ErrorText(ERROR_DISK_FULL), "No space left on device");
}

}  // namespace
