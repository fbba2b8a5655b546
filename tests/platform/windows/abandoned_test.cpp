#include "platform/abandoned.h"

#include <windows.h>
#include <gmock/gmock.h>

#include "platform/windows/text.h"
#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace {

using platform::WideFromUtf8;
using testing::ElementsAre;
using testing::IsEmpty;

class AbandonedTest : public testing::Test {
 protected:
  // A file and a folder of the process `process`.
  void Make(DWORD process) const {
    const std::string numbers = std::to_string(process) + "-1000";
    folder_.Write(".orvane-" + numbers, "half a scene");
    std::filesystem::create_directory(folder_.File("~orvane-folder-" + numbers));
    folder_.Write("~orvane-folder-" + numbers + "/half", "");
  }

  std::vector<std::string> NamesLeft() const {
    platform::RemoveAbandonedFiles(folder_.Path().string());
    platform::RemoveAbandonedFolders(folder_.Path().string());
    return test::NamesIn(folder_.Path());
  }

  test::TemporaryFolder folder_;
};

TEST_F(AbandonedTest, IsRemovedOfAProcessThatIsGone) {
  Make(4194305);
  Make(GetCurrentProcessId());  // of an earlier one
  EXPECT_THAT(NamesLeft(), IsEmpty());
}

TEST_F(AbandonedTest, IsKeptOfAProcessThatIsAlive) {
  STARTUPINFOW start{};
  start.cb = DWORD{sizeof(start)};
  PROCESS_INFORMATION other{};
  std::wstring program(MAX_PATH, L'\0');
  program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
  ASSERT_NE(CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, FALSE, CREATE_SUSPENDED,
                           nullptr, nullptr, &start, &other),
            0);
  Make(other.dwProcessId);
  const std::vector<std::string> names = test::NamesIn(folder_.Path());
  EXPECT_EQ(NamesLeft(), names);
  TerminateProcess(other.hProcess, 0);
  WaitForSingleObject(other.hProcess, INFINITE);
  EXPECT_THAT(NamesLeft(), IsEmpty());
  CloseHandle(other.hThread);
  CloseHandle(other.hProcess);
}

TEST_F(AbandonedTest, IsKeptWithAnAttributeThatItsProcessDidNotGive) {
  Make(4194305);
  for (const std::string& name : test::NamesIn(folder_.Path())) {
    const std::wstring path = WideFromUtf8(folder_.File(name));
    SetFileAttributesW(path.c_str(), GetFileAttributesW(path.c_str()) | FILE_ATTRIBUTE_HIDDEN);
  }
  EXPECT_THAT(NamesLeft(), ElementsAre(".orvane-4194305-1000", "~orvane-folder-4194305-1000"));
}

}  // namespace
