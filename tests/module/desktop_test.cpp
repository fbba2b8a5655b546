// What the module asks of a desktop that is none of Windows.

#include "platform/desktop.h"

#include <gtest/gtest.h>

#include "tests/module/utility_fixture.h"
#include "tests/support/fake_dialog.h"
#include "tests/support/file_dialog_watch.h"
#include "tests/support/htr_text.h"

namespace test {
namespace {

constexpr int kAbout = 1103;
constexpr int kCancel = 1098;
constexpr int kOk = 1097;

using DesktopTest = ModuleTest;

TEST_F(DesktopTest, WithoutADesktopTheModuleLoadsAllTheSame) {
  module_.reset();
  platform::InstallDesktop(nullptr);
  platform::InstallRegistry(nullptr);
  SetUp();
  EXPECT_EQ(module_->NumberOfClasses(), 4);
}

// Hands the options dialog's handler a command that no control of the dialog sends.
class AboutDesktop final : public ForwardingDesktop {
 public:
  int RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                platform::DialogHandler& handler) override {
    if (dialog_id != 107) {
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

class FileDialogTest : public UtilityTest {
 protected:
  void SetUp() override {
    UtilityTest::SetUp();
    desk_.Choose(platform::kMessageBoxNo);
    desk_.ChooseFiles([](const host::ShownFileDialog&) { return host::FileChoice{}; });
    Open();
  }

  // What the one file dialog was asked for that `button` of the panel leads to.
  AskedFileDialog AskedAfter(int button) {
    FileDialogWatch watch;
    Page().Click(button);
    EXPECT_EQ(watch.shown.size(), 1U);
    return watch.shown.empty() ? AskedFileDialog() : watch.shown[0];
  }

  void ExpectMappingFiles(const AskedFileDialog& asked) {
    EXPECT_EQ(asked.title, "Select Mapping File...");
    EXPECT_EQ(asked.filter, "Marker Name Mapping Files (*.MNM)");
    EXPECT_EQ(asked.pattern, "*.mnm");
    EXPECT_EQ(asked.extension, "mnm");
    EXPECT_EQ(asked.dialog.owner, application_.main_window());
    EXPECT_FALSE(asked.dialog.several);
  }
};

TEST_F(FileDialogTest, AMappingFileIsOpened) {
  const AskedFileDialog asked = AskedAfter(kBrowseMapping);
  ExpectMappingFiles(asked);
  EXPECT_EQ(asked.dialog.kind, platform::FileDialog::Kind::kOpen);
}

TEST_F(FileDialogTest, AMappingFileIsSavedInAFolderThatExistsAndNotOverAnother) {
  desk_.Act([this] {
    application_.picking().Leave();
    return true;
  });
  const AskedFileDialog asked = AskedAfter(kCreateMapping);
  ExpectMappingFiles(asked);
  EXPECT_EQ(asked.dialog.kind, platform::FileDialog::Kind::kSave);
  EXPECT_TRUE(asked.dialog.ask_before_replacing);
  EXPECT_TRUE(asked.dialog.folder_must_exist);
  EXPECT_TRUE(asked.dialog.hide_read_only_box);
}

}  // namespace
}  // namespace test
