#include "host/desktop/custom_edit.h"

#include <windows.h>

#include <map>
#include <optional>
#include <string>

#include "host/base/letter_case.h"
#include "host/desktop/number_text.h"
#include "host/desktop/windows/window_text.h"

// The class of the host's own edit controls: the system's, under a name of our own.

namespace host {
namespace {

class WindowEdit final : public ICustEdit {
 public:
  explicit WindowEdit(HWND window) : window_(window) {}
  WindowEdit(const WindowEdit&) = delete;
  WindowEdit& operator=(const WindowEdit&) = delete;
  ~WindowEdit() = default;

  float GetFloat(bool* valid) override {
    const std::optional<float> number = NumberIn(TextOf(window_));
    if (valid != nullptr) *valid = number.has_value();
    return number.value_or(0.0F);
  }
  void SetText(const char* text) override { SetWindowTextA(window_, text); }

 private:
  HWND window_;
};

// Of all such windows that have been asked for theirs, until they are destroyed.
std::map<HWND, WindowEdit>& Edits() {
  static std::map<HWND, WindowEdit> edits;
  return edits;
}

WNDPROC system_edit = nullptr;

// A template need not ask for the frame, nor for text that goes on behind it: they belong to the
// class.
void AddFrame(HWND window, CREATESTRUCTW& created) {
  created.style |= ES_AUTOHSCROLL;
  created.dwExStyle |= WS_EX_CLIENTEDGE;
  SetWindowLongW(window, GWL_STYLE, created.style);
  SetWindowLongW(window, GWL_EXSTYLE, static_cast<LONG>(created.dwExStyle));
}

LRESULT CALLBACK RunEdit(HWND window, UINT message, WPARAM word, LPARAM parameter) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): the system's own way to hand it over
  if (message == WM_NCCREATE) AddFrame(window, *reinterpret_cast<CREATESTRUCTW*>(parameter));
  if (message == WM_NCDESTROY) Edits().erase(window);
  return CallWindowProcW(system_edit, window, message, word, parameter);
}

HINSTANCE Library() {
  HMODULE library = nullptr;
  GetModuleHandleExA(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<const char*>(&RunEdit), &library);
  return library;
}

// The class exists as long as this library is loaded, for every module in the process: without
// that, no dialog with such a control could be created.
class EditClass {
 public:
  EditClass() {
    const std::wstring name(std::begin(kCustomEditClass), std::end(kCustomEditClass) - 1);
    WNDCLASSEXW edit{};
    edit.cbSize = sizeof(edit);
    GetClassInfoExW(nullptr, L"EDIT", &edit);
    system_edit = edit.lpfnWndProc;
    edit.lpfnWndProc = RunEdit;
    edit.style |= CS_GLOBALCLASS;
    edit.hInstance = Library();
    edit.lpszClassName = name.c_str();
    RegisterClassExW(&edit);
  }
  EditClass(const EditClass&) = delete;
  EditClass& operator=(const EditClass&) = delete;
  ~EditClass() { UnregisterClassA(kCustomEditClass, Library()); }
};

const EditClass edit_class;

}  // namespace

ICustEdit* CustomEditOf(HWND window) {
  if (!SameButForCase(ClassOf(window), kCustomEditClass)) return nullptr;
  return &Edits().try_emplace(window, window).first->second;
}

}  // namespace host
