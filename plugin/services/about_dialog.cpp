#include "plugin/services/about_dialog.h"

#include "platform/dialog.h"
#include "plugin/resources/resource.h"

namespace orvane {
namespace {

class AboutDialog final : public platform::DialogHandler {
 public:
  void Initialize(platform::Dialog& /*dialog*/) override {}

  void Command(platform::Dialog& dialog, int control) override {
    if (control == IDC_OK || control == platform::kCloseControl) dialog.End(1);
  }
};

}  // namespace

void ShowAboutDialog(HINSTANCE module, HWND owner) noexcept {
  try {
    AboutDialog handler;
    platform::RunModalDialog(module, IDD_ABOUT, owner, handler);
  } catch (...) {
    // There is no memory for the box, nor for saying so.
  }
}

}  // namespace orvane
