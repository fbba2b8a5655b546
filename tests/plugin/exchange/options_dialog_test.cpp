#include "plugin/exchange/options_dialog.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>

#include "host/desktop/top_level_window.h"
#include "platform/module.h"
#include "plugin/resources/resource.h"
#include "tests/support/desk.h"

namespace orvane {
namespace {

// Does what the test wants, and ends by its buttons.
class AnyOptionsDialog final : public OptionsDialog {
 public:
  explicit AnyOptionsDialog(HWND parent)
      : OptionsDialog(IDD_EXPORT_HTR, parent, platform::ModuleHandle()) {}

  std::function<void()> on_fill;
  std::function<void()> on_answer;

 private:
  void Fill(platform::Dialog& /*dialog*/) override {
    if (on_fill) on_fill();
  }
  void Answer(platform::Dialog& dialog, int control) override {
    if (on_answer) on_answer();
    if (control == IDC_OK) dialog.End(kConfirmed);
    if (control == IDC_CANCEL) dialog.End(kCancelled);
  }
};

class AnyOptionsDialogTest : public testing::Test {
 protected:
  void TearDown() override { desk_.desktop().RethrowFailure(); }

  void UserClicks(int control) {
    desk_.Expect([control](host::ScriptedDialog& dialog) {
      if (!dialog.HasEnded()) dialog.Click(control);
    });
  }

  test::Desk desk_;
  host::TopLevelWindow parent_;
  AnyOptionsDialog dialog_{parent_.Handle()};
};

TEST_F(AnyOptionsDialogTest, TellsWhetherTheOptionsWereConfirmed) {
  UserClicks(IDC_OK);
  EXPECT_TRUE(dialog_.Show());
  UserClicks(IDC_CANCEL);
  EXPECT_FALSE(dialog_.Show());
  desk_.desktop().RefuseDialog(IDD_EXPORT_HTR);
  EXPECT_FALSE(dialog_.Show());
}

TEST_F(AnyOptionsDialogTest, PassesOnWhatIsThrownWhenItIsFilled) {
  dialog_.on_fill = [] { throw std::bad_alloc(); };
  UserClicks(IDC_OK);
  EXPECT_THROW(dialog_.Show(), std::bad_alloc);
}

TEST_F(AnyOptionsDialogTest, PassesOnWhatAnAnswerThrows) {
  dialog_.on_answer = [] { throw 1; };
  UserClicks(IDC_OK);
  EXPECT_THROW(dialog_.Show(), int);
  dialog_.on_answer = nullptr;
  UserClicks(IDC_OK);
  EXPECT_TRUE(dialog_.Show()) << "once only";
}

}  // namespace
}  // namespace orvane
