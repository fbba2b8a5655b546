#include "platform/dialog.h"

#include <windows.h>
#include <gmock/gmock.h>

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "platform/module.h"
#include "plugin/resources/resource.h"

namespace {

using platform::Dialog;
using testing::ElementsAre;
using testing::IsEmpty;

// Notes the commands, and does what the test wants.
class Handler final : public platform::DialogHandler {
 public:
  void Initialize(Dialog& dialog) override {
    if (initialize) initialize(dialog);
  }
  void Command(Dialog& dialog, int control) override {
    commands.push_back(control);
    if (command) command(dialog, control);
  }

  std::function<void(Dialog&)> initialize;
  std::function<void(Dialog&, int)> command;
  std::vector<int> commands;
};

std::string TextOf(Dialog& dialog, int control, std::size_t size = 64) {
  std::array<char, 64> buffer;
  buffer.fill('#');
  const std::size_t length = dialog.GetText(control, buffer.data(), size);
  EXPECT_EQ(buffer.at(length), '\0');
  return std::string(buffer.data(), length);
}

// Shows a dialog whose first use is that of `use`, and ends it.
int RunOnce(Handler& handler, std::function<void(Dialog&)> use) {
  handler.initialize = [use](Dialog& dialog) {
    use(dialog);
    dialog.End(7);
  };
  return platform::RunModalDialog(platform::ModuleHandle(), IDD_IMPORT_HTR, nullptr, handler);
}

TEST(ModalDialog, ReturnsWhatItIsEndedWith) {
  Handler handler;
  EXPECT_EQ(RunOnce(handler, [](Dialog&) {}), 7);
  EXPECT_THAT(handler.commands, IsEmpty());
}

TEST(ModalDialog, IsAWindowWithTheTitleOfTheResource) {
  Handler handler;
  RunOnce(handler, [](Dialog& dialog) {
    std::array<char, 64> title{};
    GetWindowTextA(dialog.Window(), title.data(), static_cast<int>(title.size()));
    EXPECT_STREQ(title.data(), "ImportHTR");
  });
}

TEST(ModalDialog, HoldsTexts) {
  Handler handler;
  RunOnce(handler, [](Dialog& dialog) {
    dialog.SetText(IDC_FROM, "12");
    EXPECT_EQ(TextOf(dialog, IDC_FROM), "12");
    EXPECT_EQ(TextOf(dialog, IDC_FROM, 2), "1") << "cut to the buffer";
    EXPECT_EQ(TextOf(dialog, IDC_FROM, 1), "");
  });
}

TEST(ModalDialog, HoldsChecks) {
  Handler handler;
  RunOnce(handler, [](Dialog& dialog) {
    dialog.SetChecked(IDC_ANIMATION, true);
    EXPECT_TRUE(dialog.IsChecked(IDC_ANIMATION));
    EXPECT_FALSE(dialog.IsChecked(IDC_BASE_POSITION));
    dialog.SetChecked(IDC_ANIMATION, false);
    EXPECT_FALSE(dialog.IsChecked(IDC_ANIMATION));
  });
}

TEST(ModalDialog, EnablesAndDisables) {
  Handler handler;
  RunOnce(handler, [](Dialog& dialog) {
    dialog.SetEnabled(IDC_FROM, false);
    EXPECT_FALSE(IsWindowEnabled(dialog.ControlWindow(IDC_FROM)));
    dialog.SetEnabled(IDC_FROM, true);
    EXPECT_TRUE(IsWindowEnabled(dialog.ControlWindow(IDC_FROM)));
  });
}

TEST(ModalDialog, DoesNothingToAControlThatItDoesNotHave) {
  Handler handler;
  RunOnce(handler, [](Dialog& dialog) {
    EXPECT_EQ(dialog.ControlWindow(IDC_SPARE), nullptr);
    dialog.SetText(IDC_SPARE, "text");
    dialog.SetChecked(IDC_SPARE, true);
    dialog.SetEnabled(IDC_SPARE, true);
    EXPECT_EQ(TextOf(dialog, IDC_SPARE), "");
    EXPECT_FALSE(dialog.IsChecked(IDC_SPARE));
  });
}

// Has a dialog do with itself what `use` says once it is open, and end at the next command.
std::vector<int> CommandsAfter(const std::function<void(Dialog&)>& use) {
  Handler handler;
  handler.initialize = use;
  handler.command = [](Dialog& dialog, int) { dialog.End(1); };
  platform::RunModalDialog(platform::ModuleHandle(), IDD_IMPORT_HTR, nullptr, handler);
  return handler.commands;
}

TEST(ModalDialog, ReportsAPressedButton) {
  EXPECT_THAT(CommandsAfter([](Dialog& dialog) {
                PostMessageA(dialog.ControlWindow(IDC_OK), BM_CLICK, 0, 0);
              }),
              ElementsAre(IDC_OK));
}

TEST(ModalDialog, ReportsAClickedCheckBoxThatHasChangedItsState) {
  Handler handler;
  bool checked = false;
  handler.initialize = [](Dialog& dialog) {
    PostMessageA(dialog.ControlWindow(IDC_END_EFFECTORS), BM_CLICK, 0, 0);
  };
  handler.command = [&checked](Dialog& dialog, int control) {
    checked = dialog.IsChecked(control);
    dialog.End(1);
  };
  platform::RunModalDialog(platform::ModuleHandle(), IDD_IMPORT_HTR, nullptr, handler);
  EXPECT_THAT(handler.commands, ElementsAre(IDC_END_EFFECTORS));
  EXPECT_TRUE(checked);
}

TEST(ModalDialog, ReportsTheCloseBoxAndEscapeAsControl2) {
  EXPECT_THAT(CommandsAfter([](Dialog& dialog) { PostMessageA(dialog.Window(), WM_CLOSE, 0, 0); }),
              ElementsAre(platform::kCloseControl));
  EXPECT_THAT(CommandsAfter([](Dialog& dialog) {
                PostMessageA(dialog.ControlWindow(IDC_FROM), WM_KEYDOWN, VK_ESCAPE, 0);
              }),
              ElementsAre(platform::kCloseControl));
}

TEST(ModalDialog, ReportsTheDefaultButtonForEnter) {
  EXPECT_THAT(CommandsAfter([](Dialog& dialog) {
                PostMessageA(dialog.ControlWindow(IDC_FROM), WM_KEYDOWN, VK_RETURN, 0);
              }),
              ElementsAre(IDC_OK));
}

TEST(ModalDialog, ReportsNothingElse) {
  EXPECT_THAT(CommandsAfter([](Dialog& dialog) {
                dialog.SetText(IDC_FROM, "1");  // the edit notifies the dialog
                PostMessageA(dialog.Window(), WM_COMMAND, MAKEWPARAM(IDC_TO, EN_CHANGE),
                             reinterpret_cast<LPARAM>(dialog.ControlWindow(IDC_TO)));
                PostMessageA(dialog.ControlWindow(IDC_CANCEL), BM_CLICK, 0, 0);
              }),
              ElementsAre(IDC_CANCEL));
}

TEST(ModalDialog, IsNotCreatedWithoutItsResource) {
  Handler handler;
  EXPECT_EQ(platform::RunModalDialog(platform::ModuleHandle(), 9999, nullptr, handler),
            platform::kDialogNotCreated);
}

// What runs the buttons that look like this one: each version of the controls has its own.
ULONG_PTR ButtonProcedure(HWND button) { return GetClassLongPtrW(button, GCLP_WNDPROC); }

// The program's own manifest asks for none.
TEST(ModalDialog, HasTheControlsThatTheManifestOfTheModuleAsksFor) {
  const HWND button =
      CreateWindowW(L"BUTTON", L"", 0, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
  ASSERT_NE(button, nullptr);
  Handler handler;
  RunOnce(handler, [button](Dialog& dialog) {
    EXPECT_NE(ButtonProcedure(dialog.ControlWindow(IDC_OK)), ButtonProcedure(button));
    HANDLE context = nullptr;
    EXPECT_TRUE(GetCurrentActCtx(&context));
    EXPECT_NE(context, nullptr) << "one is active while the dialog is created";
    ReleaseActCtx(context);
  });
  DestroyWindow(button);
  HANDLE after = nullptr;
  EXPECT_TRUE(GetCurrentActCtx(&after));
  EXPECT_EQ(after, nullptr) << "and none afterwards";
}

class ModelessDialogTest : public testing::Test {
 protected:
  Handler handler_;
  platform::ModelessDialog dialog_ = platform::CreateModelessDialog(
      platform::ModuleHandle(), IDD_MAPPING_CREATOR, nullptr, handler_);
};

TEST_F(ModelessDialogTest, IsShownWhenItIsTold) {
  ASSERT_NE(dialog_, nullptr);
  EXPECT_FALSE(IsWindowVisible(dialog_->Window()));
  platform::ShowModelessDialog(*dialog_);
  EXPECT_TRUE(IsWindowVisible(dialog_->Window()));
}

TEST_F(ModelessDialogTest, ReportsAPressedButtonAndDoesNotEnd) {
  handler_.command = [](Dialog& dialog, int) { dialog.End(1); };
  platform::ShowModelessDialog(*dialog_);
  SendMessageA(dialog_->ControlWindow(IDC_SKIP), BM_CLICK, 0, 0);
  EXPECT_THAT(handler_.commands, ElementsAre(IDC_SKIP));
  EXPECT_TRUE(IsWindowVisible(dialog_->Window()));
}

// Without a focus the keyboard would do nothing any more.
TEST_F(ModelessDialogTest, GivesTheFocusOfADisabledControlToTheFirst) {
  platform::ShowModelessDialog(*dialog_);
  SetFocus(dialog_->ControlWindow(IDC_SKIP));
  dialog_->SetEnabled(IDC_BACK, false);
  EXPECT_EQ(GetFocus(), dialog_->ControlWindow(IDC_SKIP)) << "which is another one";
  dialog_->SetEnabled(IDC_SKIP, false);
  EXPECT_EQ(GetFocus(), dialog_->ControlWindow(IDC_MARKER_DESCRIPTION));
}

TEST_F(ModelessDialogTest, IsGoneWithItsOwner) {
  const HWND window = dialog_->Window();
  dialog_.reset();
  EXPECT_FALSE(IsWindow(window));
}

TEST(ModelessDialog, IsNullWithoutItsResource) {
  Handler handler;
  EXPECT_EQ(platform::CreateModelessDialog(platform::ModuleHandle(), 9999, nullptr, handler),
            nullptr);
}

// As a host does it: the procedure and the parameter are all that it has.
TEST(HandlerProcedure, RunsADialogThatSomebodyElseCreates) {
  Handler handler;
  std::string text;
  handler.initialize = [&text](Dialog& dialog) {
    dialog.SetText(IDC_MARKER_DESCRIPTION, "Left heel");
    text = TextOf(dialog, IDC_MARKER_DESCRIPTION);
  };
  const HWND window =
      CreateDialogParamA(platform::ModuleHandle(), MAKEINTRESOURCEA(IDD_MAPPING_CREATOR), nullptr,
                         platform::HandlerProcedure(), platform::HandlerParameter(handler));
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(text, "Left heel");
  SendDlgItemMessageA(window, IDC_BACK, BM_CLICK, 0, 0);
  EXPECT_THAT(handler.commands, ElementsAre(IDC_BACK));
  DestroyWindow(window);
}

// What it says about a message decides what the system does with it: the default focus, and what
// it does itself with everything else.
TEST(HandlerProcedure, SaysWhichMessagesItHasDealtWith) {
  Handler handler;
  const auto procedure = platform::HandlerProcedure();
  const HWND window =
      CreateDialogParamA(platform::ModuleHandle(), MAKEINTRESOURCEA(IDD_MAPPING_CREATOR), nullptr,
                         procedure, platform::HandlerParameter(handler));
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(procedure(window, WM_INITDIALOG, 0, platform::HandlerParameter(handler)), TRUE);
  EXPECT_EQ(procedure(window, WM_COMMAND, MAKEWPARAM(IDC_BACK, BN_CLICKED), 0), TRUE);
  EXPECT_EQ(procedure(window, WM_COMMAND, MAKEWPARAM(IDC_BACK, BN_SETFOCUS), 0), FALSE);
  EXPECT_EQ(procedure(window, WM_ERASEBKGND, 0, 0), FALSE);
  EXPECT_EQ(procedure(nullptr, WM_SETFONT, 0, 0), FALSE) << "before it has a handler";
  EXPECT_THAT(handler.commands, ElementsAre(IDC_BACK));
  DestroyWindow(window);
}

}  // namespace
