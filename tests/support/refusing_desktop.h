#pragma once

#include "host/desktop/memory_registry.h"
#include "platform/desktop.h"

namespace test {

// Creates no dialog, but remembers which one was asked for and over which window.
class RefusingDesktop final : public platform::Desktop {
 public:
  // In use until it is destroyed.
  RefusingDesktop() { platform::InstallDesktop(this); }
  RefusingDesktop(const RefusingDesktop&) = delete;
  RefusingDesktop& operator=(const RefusingDesktop&) = delete;
  ~RefusingDesktop() { platform::InstallDesktop(nullptr); }

  int DialogId() const { return dialog_id_; }
  HINSTANCE Module() const { return module_; }
  HWND Parent() const { return parent_; }

  int ShowMessage(const char* /*text*/, const char* /*caption*/,
                  platform::MessageBoxStyle /*style*/) override {
    return platform::kMessageBoxFailed;
  }
  int RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                platform::DialogHandler& /*handler*/) override {
    module_ = module;
    dialog_id_ = dialog_id;
    parent_ = parent;
    return platform::kDialogNotCreated;
  }
  platform::Registry& CurrentUser() override { return registry_; }

 private:
  host::MemoryRegistry registry_;
  HINSTANCE module_ = nullptr;
  int dialog_id_ = 0;
  HWND parent_ = nullptr;
};

}  // namespace test
