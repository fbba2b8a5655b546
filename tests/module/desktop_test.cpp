// What the module asks of a desktop that is none of Windows.

#include "platform/desktop.h"

#include <gtest/gtest.h>

#include "plugin/resources/resource.h"
#include "tests/module/module_fixture.h"
#include "tests/support/fake_dialog.h"
#include "tests/support/forwarding_desktop.h"
#include "tests/support/htr_text.h"

namespace test {
namespace {

constexpr int kAbout = IDC_ABOUT;
constexpr int kCancel = IDC_CANCEL;
constexpr int kOk = IDC_OK;

using DesktopTest = ModuleTest;

TEST_F(DesktopTest, WithoutADesktopTheModuleLoadsAllTheSame) {
  module_.reset();
  platform::Desktop* const desktop = platform::CurrentDesktop();
  platform::Registry* const registry = platform::CurrentRegistry();
  platform::InstallDesktop(nullptr);
  platform::InstallRegistry(nullptr);
  SetUp();
  EXPECT_EQ(module_->NumberOfClasses(), 4);
  platform::InstallRegistry(registry);
  platform::InstallDesktop(desktop);
}

// Hands the options dialog's handler a command that no control of the dialog sends.
class AboutDesktop final : public ForwardingDesktop {
 public:
  int RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                platform::DialogHandler& handler) override {
    if (dialog_id != IDD_IMPORT_HTR) {
      return ForwardingDesktop::RunDialog(module, dialog_id, parent, handler);
    }
    FakeDialog dialog;
    handler.Initialize(dialog);
    handler.Command(dialog, kAbout);
    EXPECT_FALSE(dialog.Result());
    handler.Command(dialog, kCancel);
    return dialog.Result().value_or(platform::kDialogNotCreated);
  }
};

TEST_F(DesktopTest, TheOptionsDialogAnswersTheAboutCommand) {
  const AboutDesktop about_desktop;
  HtrText walk;
  walk.segments = {{"Hips", "GLOBAL", "1 2 3 0 0 0 10", {"0 0 0 0 0 0"}}};
  bool shown = false;
  EXPECT_EQ(Import(Write("walk.htr", walk.Text()),
                   [&shown](host::ScriptedDialog& dialog) {
                     shown = dialog.Title() == "About...";
                     dialog.Click(kOk);
                   }),
            1);
  EXPECT_TRUE(shown);
}

}  // namespace
}  // namespace test
