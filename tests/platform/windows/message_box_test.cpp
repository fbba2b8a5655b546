#include "platform/message_box.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <string>

namespace {

// The user of one message box: a timer finds it, notes what it shows and presses a button.
class MessageBoxUser {
 public:
  explicit MessageBoxUser(int button) : button_(button) {
    current_ = this;
    timer_ = SetTimer(nullptr, 0, 20, Look);
  }
  MessageBoxUser(const MessageBoxUser&) = delete;
  MessageBoxUser& operator=(const MessageBoxUser&) = delete;
  ~MessageBoxUser() {
    KillTimer(nullptr, timer_);
    current_ = nullptr;
  }

  std::string title;
  std::string text;
  bool has_icon = false;
  int buttons = 0;
  HWND owner = nullptr;

 private:
  static void CALLBACK Look(HWND, UINT, UINT_PTR, DWORD) {
    EnumThreadWindows(GetCurrentThreadId(), LookAt, 0);
  }

  static BOOL CALLBACK LookAt(HWND window, LPARAM) {
    constexpr int kText = 0xFFFF;
    if (GetDlgItem(window, kText) == nullptr || !IsWindowVisible(window)) return TRUE;
    current_->Use(window, GetDlgItem(window, kText));
    return FALSE;
  }

  static std::string TextOf(HWND window) {
    std::string text(256, '\0');
    text.resize(static_cast<std::size_t>(GetWindowTextA(window, text.data(), 256)));
    return text;
  }

  void Use(HWND box, HWND label) {
    constexpr int kIcon = 20;
    title = TextOf(box);
    text = TextOf(label);
    const HWND icon = GetDlgItem(box, kIcon);
    has_icon = icon != nullptr && IsWindowVisible(icon);
    HWND button = nullptr;
    while ((button = FindWindowExA(box, button, "BUTTON", nullptr)) != nullptr) ++buttons;
    owner = GetWindow(box, GW_OWNER);
    PostMessageA(box, WM_COMMAND, static_cast<WPARAM>(button_), 0);
  }

  inline static MessageBoxUser* current_ = nullptr;
  int button_;
  UINT_PTR timer_ = 0;
};

TEST(ShowMessageBox, ShowsTextAndTitleWithoutAnIcon) {
  MessageBoxUser user(IDOK);
  EXPECT_EQ(platform::ShowMessageBox("Please choose a non-zero size.", "ImportHTR Error",
                                     platform::MessageBoxStyle::kOk),
            platform::kMessageBoxOk);
  EXPECT_EQ(user.title, "ImportHTR Error");
  EXPECT_EQ(user.text, "Please choose a non-zero size.");
  EXPECT_FALSE(user.has_icon);
  EXPECT_EQ(user.buttons, 1);
}

TEST(ShowMessageBox, TellsTheAnswerToAQuestion) {
  for (const auto& [button, answer] :
       {std::pair{IDYES, platform::kMessageBoxYes}, std::pair{IDNO, platform::kMessageBoxNo}}) {
    MessageBoxUser user(button);
    EXPECT_EQ(platform::ShowMessageBox("Left?", "Pick", platform::MessageBoxStyle::kYesNo), answer);
    EXPECT_EQ(user.buttons, 2);
  }
}

TEST(ShowMessageBox, BelongsToTheActiveWindowOfTheThread) {
  const HWND window = CreateWindowA("STATIC", "window", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 200,
                                    100, nullptr, nullptr, nullptr, nullptr);
  SetActiveWindow(window);
  MessageBoxUser user(IDOK);
  platform::ShowMessageBox("text", "title", platform::MessageBoxStyle::kOk);
  EXPECT_EQ(user.owner, window);
  DestroyWindow(window);
}

}  // namespace
