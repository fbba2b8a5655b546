#include "host/desktop/windows/message_box_window.h"

#include <windows.h>

#include "host/desktop/windows/window_text.h"

namespace host {
namespace {

constexpr int kTextControl = 0xFFFF;

bool Has(HWND window, int control) { return GetDlgItem(window, control) != nullptr; }

std::optional<platform::MessageBoxStyle> StyleOf(HWND window) {
  if (Has(window, IDYES) && Has(window, IDNO)) return platform::MessageBoxStyle::kYesNo;
  if (Has(window, IDOK) || Has(window, IDCANCEL)) return platform::MessageBoxStyle::kOk;
  return {};
}

// A box with one button gives it either id.
int ButtonOf(HWND window, int answer) {
  return answer == IDOK && !Has(window, IDOK) ? IDCANCEL : answer;
}

}  // namespace

std::optional<ShownMessage> ReadMessageBox(HWND window) {
  const HWND text = GetDlgItem(window, kTextControl);
  if (!IsDialogWindow(window) || text == nullptr) return {};
  const auto style = StyleOf(window);
  if (!style) return {};
  return ShownMessage{TextOf(text), TextOf(window), *style};
}

void PressMessageButton(HWND window, int button) {
  if (button == 0) {
    EndDialog(window, 0);
  } else {
    SendMessageA(GetDlgItem(window, ButtonOf(window, button)), BM_CLICK, 0, 0);
  }
}

}  // namespace host
