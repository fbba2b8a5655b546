#pragma once

#include "platform/desktop.h"

namespace test {

// Passes every call on to the desktop that was in use before; tests override what they want to see
// or do themselves. In use until it is destroyed; then the other one is again.
class ForwardingDesktop : public platform::Desktop {
 public:
  ForwardingDesktop() { platform::InstallDesktop(this); }
  ForwardingDesktop(const ForwardingDesktop&) = delete;
  ForwardingDesktop& operator=(const ForwardingDesktop&) = delete;
  ~ForwardingDesktop() { platform::InstallDesktop(&target_); }

  int ShowMessage(const char* text, const char* caption, platform::MessageBoxStyle style) override {
    return target_.ShowMessage(text, caption, style);
  }
  int RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                platform::DialogHandler& handler) override {
    return target_.RunDialog(module, dialog_id, parent, handler);
  }
  platform::Dialog* CreateModeless(HINSTANCE module, int dialog_id, HWND parent,
                                   platform::DialogHandler& handler) override {
    return target_.CreateModeless(module, dialog_id, parent, handler);
  }
  void ShowModeless(platform::Dialog& dialog) override { target_.ShowModeless(dialog); }
  void DestroyModeless(platform::Dialog& dialog) override { target_.DestroyModeless(dialog); }
  platform::Dialog* FindModeless(HWND window) override { return target_.FindModeless(window); }
  bool ProcessPendingMessages(bool awaited) override {
    return target_.ProcessPendingMessages(awaited);
  }
  bool ChooseFiles(const platform::FileDialog& dialog, char* buffer, std::size_t size,
                   std::size_t& name_offset) override {
    return target_.ChooseFiles(dialog, buffer, size, name_offset);
  }
  bool ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size) override {
    return target_.ChooseFolder(owner, title, buffer, size);
  }

 private:
  platform::Desktop& target_ = *platform::CurrentDesktop();
};

}  // namespace test
