#pragma once

#include <cstddef>

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
  platform::Dialog* CreateModeless(HINSTANCE /*module*/, int /*dialog_id*/, HWND /*parent*/,
                                   platform::DialogHandler& /*handler*/) override {
    return nullptr;
  }
  void ShowModeless(platform::Dialog& /*dialog*/) override {}
  void DestroyModeless(platform::Dialog& /*dialog*/) override {}
  platform::Dialog* FindModeless(HWND /*window*/) override { return nullptr; }
  bool ProcessPendingMessages(bool /*awaited*/) override { return false; }
  bool ChooseFiles(const platform::FileDialog& /*dialog*/, char* /*buffer*/, std::size_t /*size*/,
                   std::size_t& /*name_offset*/) override {
    return false;
  }
  bool ChooseFolder(HWND /*owner*/, const char* /*title*/, char* /*buffer*/,
                    std::size_t /*size*/) override {
    return false;
  }
  platform::Registry& CurrentUser() override { return registry_; }

 private:
  host::MemoryRegistry registry_;
  HINSTANCE module_ = nullptr;
  int dialog_id_ = 0;
  HWND parent_ = nullptr;
};

}  // namespace test
