#include "platform/file_dialog.h"

#include <windows.h>
#include <gmock/gmock.h>

#include <cstddef>
#include <functional>
#include <string>

#include "tests/support/files.h"
#include "tests/support/temporary_folder.h"

namespace {

using platform::FileDialog;

std::string TextOf(HWND window) {
  std::string text(256, '\0');
  text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), 256)));
  return text;
}

// A user who waits for a window with the given title and then uses it, once: from a timer, because
// the window has its own loop of messages. When that has not helped after a while he cancels every
// dialog that he finds.
class WindowUser {
 public:
  WindowUser(std::string title, std::function<void(HWND)> use)
      : title_(std::move(title)), use_(std::move(use)) {
    current_ = this;
    timer_ = SetTimer(nullptr, 0, 50, Look);
  }
  WindowUser(const WindowUser&) = delete;
  WindowUser& operator=(const WindowUser&) = delete;
  ~WindowUser() {
    KillTimer(nullptr, timer_);
    current_ = nullptr;
  }

  // Whether the window came, and needed no cancelling.
  bool HasUsed() const { return used_ && looks_ <= kPatience; }

 private:
  static constexpr int kPatience = 200;

  static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) {
    ++current_->looks_;
    EnumThreadWindows(GetCurrentThreadId(), LookAt, 0);
  }

  static BOOL CALLBACK LookAt(HWND window, LPARAM) {
    if (IsWindowVisible(window)) current_->Meet(window);
    return TRUE;
  }

  void Meet(HWND window) {
    if (looks_ > kPatience) PostMessageA(window, WM_CLOSE, 0, 0);
    if (used_ || TextOf(window) != title_) return;
    used_ = true;
    use_(window);
  }

  inline static WindowUser* current_ = nullptr;
  std::string title_;
  std::function<void(HWND)> use_;
  UINT_PTR timer_ = 0;
  int looks_ = 0;
  bool used_ = false;
};

// The box that a name is typed into.
HWND NameBox(HWND dialog) {
  constexpr int kEdit = 0x480;
  constexpr int kComboBox = 0x47C;
  const HWND edit = GetDlgItem(dialog, kEdit);
  return edit != nullptr ? edit : GetDlgItem(dialog, kComboBox);
}

// Types `name` and presses the button that takes it.
std::function<void(HWND)> Type(const std::string& name) {
  return [name](HWND dialog) {
    SendMessageA(NameBox(dialog), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name.c_str()));
    PostMessageA(dialog, WM_COMMAND, IDOK, 0);
  };
}

void Cancel(HWND dialog) { PostMessageA(dialog, WM_COMMAND, IDCANCEL, 0); }

class ChooseFilesTest : public testing::Test {
 protected:
  ChooseFilesTest() {
    dialog_.title = "Select Source TRC Files...";
    dialog_.filter_name = "Orvane TRC Files (*.TRC)";
    dialog_.filter_pattern = "*.trc";
    dialog_.default_extension = "trc";
    dialog_.file_must_exist = true;
    dialog_.folder_must_exist = true;
    dialog_.hide_read_only_box = true;
    dialog_.initial_folder = folder_path_.c_str();
  }

  // Whether something was chosen by a user who does that.
  bool Choose(const std::function<void(HWND)>& use, std::size_t size = 260'000) {
    WindowUser user(dialog_.title, use);
    buffer_.assign(size, '#');
    const bool chosen =
        platform::ChooseFiles(dialog_, buffer_.data(), buffer_.size(), name_offset_);
    EXPECT_TRUE(user.HasUsed());
    return chosen;
  }

  test::TemporaryFolder folder_;
  const std::string folder_path_ = folder_.Path().string();
  const std::string walk_ = folder_.Write("walk.trc", "walk");
  const std::string run_ = folder_.Write("run.trc", "run");
  FileDialog dialog_;
  std::string buffer_;
  std::size_t name_offset_ = 0;
};

TEST_F(ChooseFilesTest, GivesThePathOfAFileAndThePlaceOfItsName) {
  ASSERT_TRUE(Choose(Type("walk.trc")));
  EXPECT_STRCASEEQ(buffer_.c_str(), walk_.c_str());
  EXPECT_EQ(buffer_.substr(name_offset_, 8), "walk.trc");
  EXPECT_EQ(buffer_[walk_.size() + 1], '\0') << "two NULs end the choice";
}

TEST_F(ChooseFilesTest, GivesTheFolderAndTheNamesOfSeveralFiles) {
  dialog_.several = true;
  ASSERT_TRUE(Choose(Type("\"walk.trc\" \"run.trc\"")));
  EXPECT_STRCASEEQ(buffer_.c_str(), folder_path_.c_str());
  EXPECT_EQ(name_offset_, folder_path_.size() + 1);
  EXPECT_EQ(buffer_.substr(name_offset_, 18), std::string("walk.trc\0run.trc\0\0", 18));
}

TEST_F(ChooseFilesTest, GivesOneOfSeveralAsAPath) {
  dialog_.several = true;
  ASSERT_TRUE(Choose(Type("run.trc")));
  EXPECT_STRCASEEQ(buffer_.c_str(), run_.c_str());
  EXPECT_EQ(buffer_[run_.size() + 1], '\0');
}

TEST_F(ChooseFilesTest, GivesThePathOfAFileToBeMade) {
  dialog_.kind = FileDialog::Kind::kSave;
  dialog_.file_must_exist = false;
  dialog_.ask_before_replacing = true;
  ASSERT_TRUE(Choose(Type("new")));
  EXPECT_STRCASEEQ(buffer_.c_str(), folder_.File("new.trc").c_str());
  EXPECT_FALSE(std::filesystem::exists(folder_.File("new.trc")));
}

// Whether the dialog lets files be opened for reading only.
bool HasReadOnlyBox(HWND dialog) {
  constexpr int kReadOnlyBox = 0x410;
  const HWND box = GetDlgItem(dialog, kReadOnlyBox);
  return box != nullptr && IsWindowVisible(box);
}

TEST_F(ChooseFilesTest, HidesTheBoxForReadingOnlyWhenItIsTold) {
  for (const bool several : {false, true}) {
    for (const bool hide : {false, true}) {
      dialog_.several = several;
      dialog_.hide_read_only_box = hide;
      bool shown = false;
      EXPECT_FALSE(Choose([&shown](HWND dialog) {
        shown = HasReadOnlyBox(dialog);
        Cancel(dialog);
      }));
      EXPECT_EQ(shown, !hide) << several;
    }
  }
}

TEST_F(ChooseFilesTest, BelongsToItsOwner) {
  const HWND window = CreateWindowA("STATIC", "window", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200,
                                    100, nullptr, nullptr, nullptr, nullptr);
  dialog_.owner = window;
  HWND owner = nullptr;
  EXPECT_FALSE(Choose([&owner](HWND dialog) {
    owner = GetWindow(dialog, GW_OWNER);
    Cancel(dialog);
  }));
  EXPECT_EQ(owner, window);
  DestroyWindow(window);
}

TEST_F(ChooseFilesTest, LeavesTheCurrentFolderAsItIs) {
  const std::filesystem::path before = std::filesystem::current_path();
  ASSERT_TRUE(Choose(Type("walk.trc")));
  EXPECT_EQ(std::filesystem::current_path(), before);
}

TEST_F(ChooseFilesTest, IsFalseWhenTheUserCancels) { EXPECT_FALSE(Choose(Cancel)); }

TEST_F(ChooseFilesTest, IsFalseWhenTheChoiceDoesNotFit) {
  EXPECT_FALSE(Choose(Type("walk.trc"), 8));
}

TEST(ChooseFolder, IsFalseWhenTheUserCancels) {
  WindowUser user("Browse for Folder", Cancel);
  std::string buffer(64, '\0');
  EXPECT_FALSE(platform::ChooseFolder(nullptr, "Choose", buffer.data(), buffer.size()));
  EXPECT_TRUE(user.HasUsed());
}

// The folder that is chosen to begin with is the desktop, which is one of the file system.
TEST(ChooseFolder, GivesThePathOfTheFolder) {
  WindowUser user("Browse for Folder",
                  [](HWND dialog) { PostMessageA(dialog, WM_COMMAND, IDOK, 0); });
  std::string buffer(64 * 1024, '\0');
  ASSERT_TRUE(platform::ChooseFolder(nullptr, "Choose", buffer.data(), buffer.size()));
  EXPECT_TRUE(user.HasUsed());
  EXPECT_TRUE(std::filesystem::is_directory(buffer.c_str())) << buffer.c_str();
}

TEST(PathSeparator, IsTheBackslash) { EXPECT_EQ(platform::PathSeparator(), '\\'); }

}  // namespace
