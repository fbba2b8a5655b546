#include "host/desktop/windows/refused_dialogs.h"

#include <windows.h>

#include <algorithm>

#include "host/desktop/windows/dialog_resources.h"
#include "platform/windows/text.h"

namespace host {
namespace {

const RefusedDialogs* refusing = nullptr;

bool IsDialogClass(const wchar_t* name) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the system's number of the class of dialogs
  return name == MAKEINTRESOURCEW(32770) || (!IS_INTRESOURCE(name) && wcscmp(name, L"#32770") == 0);
}

// The system asks before it creates a window; an answer other than 0 keeps it from that.
LRESULT CALLBACK AskBeforeCreation(int code, WPARAM word, LPARAM parameter) {
  if (code == HCBT_CREATEWND && refusing != nullptr) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system's own form
    const CREATESTRUCTW& window = *reinterpret_cast<CBT_CREATEWNDW*>(parameter)->lpcs;
    const bool is_part = (static_cast<DWORD>(window.style) & WS_CHILD) != 0;
    if (IsDialogClass(window.lpszClass) &&
        refusing->Contains(window.hInstance, window.lpszName, is_part)) {
      return 1;
    }
  }
  return CallNextHookEx(nullptr, code, word, parameter);
}

}  // namespace

RefusedDialogs::~RefusedDialogs() {
  if (hook_ == nullptr) return;
  UnhookWindowsHookEx(static_cast<HHOOK>(hook_));
  refusing = nullptr;
}

void RefusedDialogs::Refuse(int dialog_id) {
  ids_.insert(dialog_id);
  if (hook_ != nullptr) return;
  refusing = this;
  hook_ = SetWindowsHookExW(WH_CBT, AskBeforeCreation, nullptr, GetCurrentThreadId());
}

bool RefusedDialogs::Contains(HINSTANCE module, const wchar_t* title, bool is_part) const {
  const std::string name = platform::Utf8FromWide(title == nullptr ? L"" : title);
  return std::any_of(ids_.begin(), ids_.end(), [&](int id) {
    const auto resource = FindDialogResource(module, id);
    return resource && resource->dialog.title == name &&
           is_part == ((resource->dialog.style & platform::kStyleChild) != 0);
  });
}

}  // namespace host
