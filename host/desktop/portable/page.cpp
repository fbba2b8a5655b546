#include "host/desktop/page.h"

#include "platform/desktop.h"

namespace host {
namespace {

// Turns what happens to a dialog into the messages that a plug-in's procedure understands.
class PortablePage final : public Page, public platform::DialogHandler {
 public:
  PortablePage(platform::DialogProcedure procedure, std::intptr_t parameter)
      : procedure_(procedure), parameter_(parameter) {}

  // False when the dialog cannot be created.
  bool Create(HINSTANCE module, int dialog_id, HWND parent) {
    platform::Desktop* const desktop = platform::CurrentDesktop();
    if (desktop == nullptr) return false;
    platform::Dialog* const dialog = desktop->CreateModeless(module, dialog_id, parent, *this);
    if (dialog == nullptr) return false;
    window_ = dialog->Window();
    desktop->ShowModeless(*dialog);
    return true;
  }

  [[nodiscard]] HWND Window() const override { return window_; }

  void Close() override {
    platform::Desktop* const desktop = platform::CurrentDesktop();
    platform::Dialog* const dialog = desktop == nullptr ? nullptr : desktop->FindModeless(window_);
    if (dialog != nullptr) desktop->DestroyModeless(*dialog);
  }

  void Initialize(platform::Dialog& dialog) override {
    procedure_(dialog.Window(), platform::kInitializeDialog, 0, parameter_);
  }

  void Command(platform::Dialog& dialog, int control) override {
    procedure_(dialog.Window(), platform::kDialogCommand, static_cast<std::uintptr_t>(control),
               parameter_);
  }

 private:
  platform::DialogProcedure procedure_;
  std::intptr_t parameter_;
  HWND window_ = nullptr;
};

}  // namespace

std::unique_ptr<Page> Page::Open(HINSTANCE module, int dialog_id, HWND parent,
                                 platform::DialogProcedure procedure, std::intptr_t parameter) {
  auto page = std::make_unique<PortablePage>(procedure, parameter);
  if (!page->Create(module, dialog_id, parent)) return nullptr;
  return page;
}

}  // namespace host
