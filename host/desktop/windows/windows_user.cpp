#include "host/desktop/windows/windows_user.h"

#include <windows.h>

#include <algorithm>
#include <exception>
#include <iterator>
#include <optional>
#include <string>
#include <utility>

#include "host/desktop/windows/dialog_resources.h"
#include "host/desktop/windows/file_dialog_window.h"
#include "host/desktop/windows/folder_dialog_window.h"
#include "host/desktop/windows/thread_windows.h"
#include "host/desktop/windows/watchdog.h"
#include "host/desktop/windows/window_text.h"
#include "platform/dialog.h"

namespace host {
namespace {

// The properties of windows that the user has dealt with: he has been asked about a modal one, and
// seen a modeless one.
constexpr char kAsked[] = "SkelderAsked";
constexpr char kModeless[] = "SkelderModeless";

bool Is(HWND window, const char* property) { return GetPropA(window, property) != nullptr; }
void Mark(HWND window, const char* property) { SetPropA(window, property, window); }

bool IsPart(HWND window) { return (GetWindowLongA(window, GWL_STYLE) & WS_CHILD) != 0; }

// A dialog that somebody waits for disables its owner.
bool HasWorkingOwner(HWND dialog) {
  const HWND owner = GetWindow(dialog, GW_OWNER);
  return owner != nullptr && IsWindowEnabled(owner) != 0;
}

// Whether a common dialog for files stands below `window`, and so shows it.
std::optional<FileDialogWindow> FileDialogBelow(HWND window) {
  const HWND owner = GetWindow(window, GW_OWNER);
  if (owner == nullptr || !FileDialogWindow::IsOne(owner)) return {};
  return FileDialogWindow(owner);
}

// Called in any modal loop of this thread.
void CALLBACK LookAround(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/) {
  if (WindowsUser* const user = WindowsUser::Current()) user->AnswerNext();
}

}  // namespace

WindowsUser* WindowsUser::current = nullptr;

WindowsUser::WindowsUser() : previous_(current) {
  WatchWindows();
  current = this;
  timer_ = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, LookAround);
}

WindowsUser::~WindowsUser() {
  KillTimer(nullptr, timer_);
  current = previous_;
}

void WindowsUser::AnswerNext() {
  const HWND window = script_.Failure().HasHappened() ? nullptr : Unanswered();
  if (window != nullptr) {
    Mark(window, kAsked);
    Answer(window);
  }
  if (script_.Failure().HasHappened()) CloseEverything();
}

// The modal dialog that stands above all others, unless it has been dealt with.
HWND WindowsUser::Unanswered() const {
  const std::vector<HWND> shown = ShownWindows();
  const auto found = std::find_if(shown.begin(), shown.end(), [](HWND window) {
    return IsDialogWindow(window) && IsWindowEnabled(window) != 0 && !Is(window, kAsked) &&
           !Is(window, kModeless);
  });
  return found == shown.end() ? nullptr : *found;
}

void WindowsUser::Answer(HWND window) {
  if (const auto message = ReadMessageBox(window)) return AnswerMessage(window, *message);
  if (FileDialogWindow::IsOne(window)) return AnswerFileDialog(window);
  if (FolderDialogWindow::IsOne(window)) return AnswerFolderDialog(window);
  if (HasWorkingOwner(window)) return Mark(window, kModeless);
  AnswerDialog(window);
}

void WindowsUser::AnswerMessage(HWND window, const ShownMessage& message) {
  const auto file_dialog = FileDialogBelow(window);
  if (choice_ != nullptr && file_dialog) {
    const bool asks = message.style == platform::MessageBoxStyle::kYesNo;
    if (asks && choice_->agrees_to_replace) return PressMessageButton(window, IDYES);
    script_.Failure().Keep(
        std::make_exception_ptr(ScriptError("The dialog \"" + file_dialog->Shown().title +
                                            "\" does not accept the choice: " + message.text)));
    return PressMessageButton(window, asks ? IDNO : IDOK);
  }
  PressMessageButton(window, script_.AnswerMessage(message.text, message.title, message.style));
}

void WindowsUser::AnswerFileDialog(HWND window) {
  FileDialogWindow dialog(window);
  const bool chosen = script_.ChooseFiles(dialog.Shown(), [&](const FileChoice& choice) {
    const FileChoice* const before = std::exchange(choice_, &choice);
    try {
      dialog.Choose(choice);
    } catch (...) {
      choice_ = before;
      throw;
    }
    choice_ = before;
    return true;
  });
  if (!chosen) dialog.Cancel();
}

void WindowsUser::AnswerFolderDialog(HWND window) {
  FolderDialogWindow dialog(window);
  const bool chosen = script_.ChooseFolder(dialog.Title(), [&dialog](const std::string& folder) {
    dialog.Choose(folder);
    return true;
  });
  if (!chosen) dialog.Cancel();
}

void WindowsUser::AnswerDialog(HWND window) {
  DialogWindow* const dialog = UserSideOf(window);
  if (dialog == nullptr) {
    script_.Failure().Keep(std::make_exception_ptr(
        ScriptError("Nobody knows the dialog \"" + TextOf(window) + "\".")));
  } else if (!script_.UseDialog(*dialog) && IsWindow(window) != 0) {
    EndDialog(window, platform::kDialogNotCreated);
  }
}

// A dialog for files that is being used may be in the middle of something: whoever uses it cancels
// it when that has returned.
void WindowsUser::CloseEverything() {
  for (HWND window : ShownWindows()) {
    if (!IsDialogWindow(window) || Is(window, kModeless)) continue;
    if (ReadMessageBox(window)) {
      PressMessageButton(window, platform::kMessageBoxFailed);
    } else if (FileDialogWindow::IsOne(window)) {
      if (!Is(window, kAsked)) FileDialogWindow(window).Cancel();
    } else if (FolderDialogWindow::IsOne(window)) {
      if (!Is(window, kAsked)) FolderDialogWindow(window).Cancel();
    } else if (Is(window, kAsked) || !HasWorkingOwner(window)) {
      EndDialog(window, platform::kDialogNotCreated);
    }
  }
}

DialogWindow* WindowsUser::UserSideOf(HWND window) {
  const auto known = std::find_if(dialogs_.begin(), dialogs_.end(), [window](const auto& dialog) {
    return dialog->Window() == window && !dialog->HasEnded();
  });
  if (known != dialogs_.end()) return known->get();
  auto resource = ResourceOf(window);
  if (!resource) return nullptr;
  dialogs_.push_back(
      std::make_unique<DialogWindow>(window, std::move(*resource), script_.Failure()));
  return dialogs_.back().get();
}

// Those of windows that are no dialogs themselves are parts of them.
std::vector<HWND> WindowsUser::ShownModeless() const {
  std::vector<HWND> modeless;
  for (HWND window : ShownWindows()) {
    if (!IsDialogWindow(window)) {
      const std::vector<HWND> parts = DialogsWithin(window);
      std::copy_if(parts.begin(), parts.end(), std::back_inserter(modeless), IsShown);
    } else if (!Is(window, kAsked)) {
      modeless.push_back(window);
    }
  }
  return modeless;
}

ScriptedDialog* WindowsUser::ShownDialog(int dialog_id) {
  for (HWND window : ShownModeless()) {
    DialogWindow* const dialog = UserSideOf(window);
    if (dialog == nullptr || dialog->Id() != dialog_id) continue;
    Mark(window, kModeless);
    return dialog;
  }
  return nullptr;
}

bool WindowsUser::AnyWaiting() {
  bool any = false;
  for (HWND window : ShownModeless()) {
    Mark(window, kModeless);
    any = any || !IsPart(window);
  }
  return any;
}

}  // namespace host
