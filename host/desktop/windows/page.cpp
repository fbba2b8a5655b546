#include "host/desktop/page.h"

#include <windows.h>

namespace host {
namespace {

class WindowsPage final : public Page {
 public:
  explicit WindowsPage(HWND window) : window_(window) {}

  [[nodiscard]] HWND Window() const override { return window_; }
  void Close() override { DestroyWindow(window_); }

 private:
  HWND window_;
};

}  // namespace

std::unique_ptr<Page> Page::Open(HINSTANCE module, int dialog_id, HWND parent,
                                 platform::DialogProcedure procedure, std::intptr_t parameter) {
  HWND window = CreateDialogParamA(module, MAKEINTRESOURCEA(dialog_id), parent, procedure,
                                   static_cast<LPARAM>(parameter));
  if (window == nullptr) return nullptr;
  ShowWindow(window, SW_SHOW);
  return std::make_unique<WindowsPage>(window);
}

}  // namespace host
