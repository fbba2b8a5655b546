#include "host/application/rollup_pages.h"

#include <algorithm>
#include <utility>

#include "platform/desktop.h"

namespace host {

// Turns what happens to a dialog into the messages that a plug-in's procedure understands.
class RollupPages::Procedure final : public platform::DialogHandler {
 public:
  Procedure(platform::DialogProcedure procedure, std::intptr_t parameter)
      : procedure_(procedure), parameter_(parameter) {}

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
};

RollupPages::RollupPages(MisuseLog& misuse) : misuse_(misuse) {}

RollupPages::~RollupPages() = default;

HWND RollupPages::Add(HINSTANCE module, int dialog_id, HWND parent,
                      platform::DialogProcedure procedure, std::intptr_t parameter,
                      RollupPage page) {
  platform::Desktop* const desktop = platform::CurrentDesktop();
  if (desktop == nullptr) return nullptr;
  procedures_.push_back(std::make_unique<Procedure>(procedure, parameter));
  platform::Dialog* const dialog =
      desktop->CreateModeless(module, dialog_id, parent, *procedures_.back());
  if (dialog == nullptr) return nullptr;
  desktop->ShowModeless(*dialog);
  page.window = dialog->Window();
  open_.push_back(std::move(page));
  return open_.back().window;
}

void RollupPages::Delete(HWND window) {
  const auto page = std::find_if(open_.begin(), open_.end(), [window](const RollupPage& candidate) {
    return candidate.window == window;
  });
  if (page == open_.end()) {
    misuse_.Report("DeleteRollupPage of a page that is not open");
    return;
  }
  open_.erase(page);
  platform::Desktop* const desktop = platform::CurrentDesktop();
  platform::Dialog* const dialog = desktop == nullptr ? nullptr : desktop->FindModeless(window);
  if (dialog != nullptr) desktop->DestroyModeless(*dialog);
}

}  // namespace host
