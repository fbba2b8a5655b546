#include "host/desktop/modeless_dialogs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "tests/host/desktop/dialog_fixture.h"

namespace host {
namespace {

using testing::ElementsAre;

class ModelessDialogTest : public DialogFixture {
 protected:
  // A dialog that is open, and shown.
  platform::Dialog& Open(int dialog_id = kDialog) {
    platform::Dialog* const dialog = desktop.CreateModeless(&module, dialog_id, &parent, handler);
    desktop.ShowModeless(*dialog);
    return *dialog;
  }

  // Lets `act` be what the user does next.
  void Plan(std::function<bool()> act) {
    ScriptedUser user;
    user.act = std::move(act);
    desktop.SetUser(std::move(user));
  }

  std::string Failure() const {
    try {
      desktop.RethrowFailure();
    } catch (const ScriptError& error) {
      return error.what();
    }
    return "";
  }

  static constexpr char kIdle[] = "The plug-in waits, and its user has nothing left to do.";
};

TEST_F(ModelessDialogTest, IsFilledByItsHandlerAndUsedByItsUser) {
  handler.on_initialize = [](platform::Dialog& dialog) { dialog.SetText(kEdit, "filled"); };
  platform::Dialog& dialog = Open();
  ScriptedDialog* const shown = desktop.ShownDialog(kDialog);
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->Text(kEdit), "filled");
  EXPECT_EQ(shown->Window(), dialog.Window());
  EXPECT_EQ(shown->Window()->parent, &parent);
  shown->Click(kCheck);
  EXPECT_THAT(handler.commands, ElementsAre(kCheck));
}

TEST_F(ModelessDialogTest, IsNotThereBeforeItIsShown) {
  platform::Dialog* const dialog = desktop.CreateModeless(&module, kDialog, &parent, handler);
  EXPECT_EQ(desktop.ShownDialog(kDialog), nullptr);
  desktop.ShowModeless(*dialog);
  EXPECT_NE(desktop.ShownDialog(kDialog), nullptr);
  EXPECT_EQ(desktop.ShownDialog(kPage), nullptr);
}

TEST_F(ModelessDialogTest, StaysOpenWhenItsHandlerEndsIt) {
  Open();
  desktop.ShownDialog(kDialog)->Click(kOk);
  EXPECT_NE(desktop.ShownDialog(kDialog), nullptr);
}

TEST_F(ModelessDialogTest, MayBeDestroyedWhileItIsUsed) {
  platform::Dialog& dialog = Open();
  ScriptedDialog* const shown = desktop.ShownDialog(kDialog);
  handler.on_command = [&](platform::Dialog&, int) { desktop.DestroyModeless(dialog); };
  shown->Click(kCheck);
  EXPECT_TRUE(shown->HasEnded());
  EXPECT_EQ(desktop.ShownDialog(kDialog), nullptr);
  EXPECT_EQ(desktop.FindModeless(dialog.Window()), nullptr);
  EXPECT_THROW(shown->Click(kCheck), ScriptError);
  desktop.DestroyModeless(dialog);
}

TEST_F(ModelessDialogTest, IsFoundByItsWindow) {
  platform::Dialog& first = Open();
  platform::Dialog& second = Open(kPage);
  EXPECT_EQ(desktop.FindModeless(first.Window()), &first);
  EXPECT_EQ(desktop.FindModeless(second.Window()), &second);
  EXPECT_EQ(desktop.FindModeless(&parent), nullptr);
}

TEST_F(ModelessDialogTest, LatestOfTwoIsInFront) {
  platform::Dialog& first = Open();
  platform::Dialog& second = Open();
  EXPECT_EQ(desktop.ShownDialog(kDialog)->Window(), second.Window());
  desktop.DestroyModeless(second);
  EXPECT_EQ(desktop.ShownDialog(kDialog)->Window(), first.Window());
}

TEST_F(ModelessDialogTest, IsNotCreatedWhenItIsRefusedOrUnknown) {
  desktop.RefuseDialog(kDialog);
  EXPECT_EQ(desktop.CreateModeless(&module, kDialog, &parent, handler), nullptr);
  EXPECT_EQ(desktop.CreateModeless(&module, 200, &parent, handler), nullptr);
  EXPECT_EQ(desktop.CreateModeless(nullptr, kPage, &parent, handler), nullptr);
}

TEST_F(ModelessDialogTest, LetsTheUserActWhileItStandsOpen) {
  Open();
  int acts = 0;
  Plan([&acts] { return ++acts < 3; });
  EXPECT_TRUE(desktop.ProcessPendingMessages(false));
  EXPECT_TRUE(desktop.ProcessPendingMessages(false));
  EXPECT_FALSE(desktop.ProcessPendingMessages(false));
  EXPECT_EQ(Failure(), kIdle);
  EXPECT_FALSE(desktop.ProcessPendingMessages(false)) << "nobody is asked any more";
  EXPECT_EQ(acts, 3);
}

TEST_F(ModelessDialogTest, WaitingForAUserWhoDoesNothingIsAFailure) {
  Open();
  EXPECT_FALSE(desktop.ProcessPendingMessages(false));
  EXPECT_EQ(Failure(), kIdle);
}

TEST_F(ModelessDialogTest, NobodyIsAwaitedWithoutADialog) {
  Plan([]() -> bool { throw ScriptError("asked"); });
  EXPECT_TRUE(desktop.ProcessPendingMessages(false));
  desktop.CreateModeless(&module, kDialog, &parent, handler);
  EXPECT_TRUE(desktop.ProcessPendingMessages(false)) << "it is not shown";
  platform::Dialog& dialog = Open();
  desktop.DestroyModeless(dialog);
  EXPECT_TRUE(desktop.ProcessPendingMessages(false)) << "it is gone";
  Open(kPage);
  EXPECT_TRUE(desktop.ProcessPendingMessages(false)) << "it is a part of another window";
  EXPECT_EQ(Failure(), "");
  EXPECT_FALSE(desktop.ProcessPendingMessages(true));
  EXPECT_EQ(Failure(), "asked");
}

TEST_F(ModelessDialogTest, AnActMayPutAnotherUserInItsPlace) {
  Open();
  Plan([this] {
    Plan([] { return false; });
    return true;
  });
  EXPECT_TRUE(desktop.ProcessPendingMessages(false));
  EXPECT_FALSE(desktop.ProcessPendingMessages(false));
}

TEST_F(ModelessDialogTest, FailedMessageOfAnActIsNoticed) {
  Open();
  handler.on_command = [this](platform::Dialog&, int) {
    desktop.ShowMessage("No.", "Error", platform::MessageBoxStyle::kOk);
  };
  Plan([this] {
    desktop.ShownDialog(kDialog)->Click(kCheck);
    return true;
  });
  EXPECT_FALSE(desktop.ProcessPendingMessages(false));
  EXPECT_EQ(Failure(), "Nobody answers the message \"No.\" (\"Error\").");
}

}  // namespace
}  // namespace host
