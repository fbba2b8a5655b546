#include "plugin/services/about_dialog.h"

#include <gtest/gtest.h>

#include "host/desktop/top_level_window.h"
#include "platform/module.h"
#include "plugin/resources/resource.h"
#include "tests/support/desk.h"

namespace orvane {
namespace {

constexpr int kAboutDialog = IDD_ABOUT;
constexpr int kOk = IDC_OK;

bool HasText(const host::ScriptedDialog& dialog, const std::string& text) {
  for (const host::DialogControl& control : dialog.Controls()) {
    if (control.text == text) return true;
  }
  return false;
}

TEST(AboutDialogTest, TellsNameAndVersionAndEndsWithOk) {
  test::Desk desk;
  desk.Expect([](host::ScriptedDialog& dialog) {
    EXPECT_EQ(dialog.Id(), kAboutDialog);
    EXPECT_EQ(dialog.Title(), "About...");
    EXPECT_TRUE(HasText(dialog, "OrvaneFileIO for Skelder"));
    EXPECT_TRUE(HasText(dialog, "Version 3.2.1"));
    dialog.Click(kOk);
    EXPECT_TRUE(dialog.HasEnded());
  });
  ShowAboutDialog(platform::ModuleHandle(), nullptr);
  EXPECT_TRUE(desk.AllAnswered());
  desk.desktop().RethrowFailure();
}

TEST(AboutDialogTest, IsShownOverItsOwner) {
  test::Desk desk;
  const host::TopLevelWindow owner;
  desk.Expect([&owner](host::ScriptedDialog& dialog) {
    EXPECT_EQ(dialog.Owner(), owner.Handle());
    dialog.Click(kOk);
  });
  ShowAboutDialog(platform::ModuleHandle(), owner.Handle());
  desk.desktop().RethrowFailure();
}

TEST(AboutDialogTest, EscClosesItToo) {
  test::Desk desk;
  desk.Expect([](host::ScriptedDialog& dialog) { dialog.PressEscape(); });
  ShowAboutDialog(platform::ModuleHandle(), nullptr);
  desk.desktop().RethrowFailure();
}

TEST(AboutDialogTest, ADialogThatCannotBeCreatedIsNoFailure) {
  test::Desk desk;
  desk.desktop().RefuseDialog(kAboutDialog);
  ShowAboutDialog(platform::ModuleHandle(), nullptr);
  desk.desktop().RethrowFailure();
}

}  // namespace
}  // namespace orvane
