// Which window the module's boxes stand over, and a command that no control of its dialogs sends
// but a program that sits beside them can.

#include <gtest/gtest.h>

#include <string>

#include "plugin/resources/resource.h"
#include "tests/module/module_fixture.h"
#include "tests/windows/window_layout.h"

namespace test {
namespace {

constexpr char kWalk[] = ORVANE_SOURCE_DIR "/examples/walk.htr";
constexpr int kGlobal = IDC_GLOBAL_SCALE;
constexpr int kOk = IDC_OK;
constexpr int kCancel = IDC_CANCEL;
constexpr int kAbout = IDC_ABOUT;

class WindowOwnersTest : public ModuleTest {
 protected:
  // Sends the dialog that command; the box that follows is closed.
  void AskForAbout(host::ScriptedDialog& dialog) {
    HWND owner = nullptr;
    desk_.Expect([&owner](host::ScriptedDialog& about) {
      EXPECT_EQ(about.Title(), "About...");
      owner = about.Owner();
      about.Click(kOk);
    });
    SendCommand(dialog.Window(), kAbout);
    EXPECT_EQ(owner, dialog.Window());
    EXPECT_FALSE(dialog.HasEnded());
    dialog.Click(kCancel);
  }
};

TEST_F(WindowOwnersTest, TheOptionsOfAnImportAnswerTheAboutCommand) {
  EXPECT_EQ(Import(kWalk, [this](host::ScriptedDialog& dialog) { AskForAbout(dialog); }), 1);
}

TEST_F(WindowOwnersTest, TheOptionsOfAnExportAnswerTheAboutCommand) {
  EXPECT_EQ(Export(folder_.File("out.htr"),
                   [this](host::ScriptedDialog& dialog) { AskForAbout(dialog); }),
            1);
}

TEST_F(WindowOwnersTest, ARefusalStandsOverTheDialogThatIsRefused) {
  HWND owner = nullptr;
  desk_.WhenTold([&owner] { owner = OwnerOfActiveWindow(); });
  Import(kWalk, [&owner](host::ScriptedDialog& dialog) {
    dialog.Type(kGlobal, "0");
    dialog.Click(kOk);
    EXPECT_EQ(owner, dialog.Window());
    dialog.Click(kCancel);
  });
  EXPECT_EQ(desk_.Messages(), "ImportHTR Error: Please choose a non-zero scale factor.\n");
}

}  // namespace
}  // namespace test
