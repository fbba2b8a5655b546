#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "host/desktop/pending_messages.h"
#include "platform/message_box.h"
#include "tests/host/desktop/dialog_fixture.h"

namespace host {
namespace {

using testing::ElementsAre;

class ModelessDialogTest : public DialogFixture {
 protected:
  platform::ModelessDialog Create(int dialog_id = kDialog) {
    return platform::CreateModelessDialog(module, dialog_id, parent.Handle(), handler);
  }

  // A dialog that is open, and shown.
  platform::ModelessDialog Open(int dialog_id = kDialog) {
    platform::ModelessDialog dialog = Create(dialog_id);
    platform::ShowModelessDialog(*dialog);
    return dialog;
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
  platform::ModelessDialog dialog = Open();
  ScriptedDialog* const shown = desktop.ShownDialog(kDialog);
  ASSERT_NE(shown, nullptr);
  EXPECT_EQ(shown->Text(kEdit), "filled");
  EXPECT_EQ(shown->Window(), dialog->Window());
  EXPECT_EQ(shown->Owner(), parent.Handle());
  shown->Click(kCheck);
  EXPECT_THAT(handler.commands, ElementsAre(kCheck));
}

TEST_F(ModelessDialogTest, IsNotThereBeforeItIsShown) {
  const platform::ModelessDialog dialog = Create();
  EXPECT_EQ(desktop.ShownDialog(kDialog), nullptr);
  platform::ShowModelessDialog(*dialog);
  EXPECT_NE(desktop.ShownDialog(kDialog), nullptr);
  EXPECT_EQ(desktop.ShownDialog(kPage), nullptr);
}

TEST_F(ModelessDialogTest, StaysOpenWhenItsHandlerEndsIt) {
  const platform::ModelessDialog dialog = Open();
  desktop.ShownDialog(kDialog)->Click(kOk);
  EXPECT_NE(desktop.ShownDialog(kDialog), nullptr);
}

TEST_F(ModelessDialogTest, MayBeDestroyedWhileItIsUsed) {
  platform::ModelessDialog dialog = Open();
  ScriptedDialog* const shown = desktop.ShownDialog(kDialog);
  ASSERT_NE(shown, nullptr);
  handler.on_command = [&](platform::Dialog&, int) { dialog.reset(); };
  shown->Click(kCheck);
  EXPECT_TRUE(shown->HasEnded());
  EXPECT_EQ(desktop.ShownDialog(kDialog), nullptr);
  EXPECT_THROW(shown->Click(kCheck), ScriptError);
}

TEST_F(ModelessDialogTest, LatestOfTwoIsInFront) {
  const platform::ModelessDialog first = Open();
  platform::ModelessDialog second = Open();
  EXPECT_EQ(desktop.ShownDialog(kDialog)->Window(), second->Window());
  second.reset();
  EXPECT_EQ(desktop.ShownDialog(kDialog)->Window(), first->Window());
}

TEST_F(ModelessDialogTest, IsNotCreatedWhenItIsRefusedOrUnknown) {
  desktop.RefuseDialog(kDialog);
  EXPECT_EQ(Create(), nullptr);
  EXPECT_EQ(Create(200), nullptr);
}

TEST_F(ModelessDialogTest, LetsTheUserActWhileItStandsOpen) {
  const platform::ModelessDialog dialog = Open();
  int acts = 0;
  Plan([&acts] { return ++acts < 3; });
  EXPECT_TRUE(HandlePendingMessages(false));
  EXPECT_TRUE(HandlePendingMessages(false));
  EXPECT_FALSE(HandlePendingMessages(false));
  EXPECT_EQ(Failure(), kIdle);
  EXPECT_FALSE(HandlePendingMessages(false)) << "nobody is asked any more";
  EXPECT_EQ(acts, 3);
}

TEST_F(ModelessDialogTest, WaitingForAUserWhoDoesNothingIsAFailure) {
  const platform::ModelessDialog dialog = Open();
  EXPECT_FALSE(HandlePendingMessages(false));
  EXPECT_EQ(Failure(), kIdle);
}

TEST_F(ModelessDialogTest, NobodyIsAwaitedWithoutADialog) {
  Plan([]() -> bool { throw ScriptError("asked"); });
  EXPECT_TRUE(HandlePendingMessages(false));
  const platform::ModelessDialog hidden = Create();
  EXPECT_TRUE(HandlePendingMessages(false)) << "it is not shown";
  Open().reset();
  EXPECT_TRUE(HandlePendingMessages(false)) << "it is gone";
  const platform::ModelessDialog page = Open(kPage);
  EXPECT_TRUE(HandlePendingMessages(false)) << "it is a part of another window";
  EXPECT_EQ(Failure(), "");
  EXPECT_FALSE(HandlePendingMessages(true));
  EXPECT_EQ(Failure(), "asked");
}

TEST_F(ModelessDialogTest, AnActMayPutAnotherUserInItsPlace) {
  const platform::ModelessDialog dialog = Open();
  Plan([this] {
    Plan([] { return false; });
    return true;
  });
  EXPECT_TRUE(HandlePendingMessages(false));
  EXPECT_FALSE(HandlePendingMessages(false));
}

TEST_F(ModelessDialogTest, FailedMessageOfAnActIsNoticed) {
  const platform::ModelessDialog dialog = Open();
  handler.on_command = [](platform::Dialog&, int) {
    platform::ShowMessageBox("No.", "Error", platform::MessageBoxStyle::kOk);
  };
  Plan([this] {
    desktop.ShownDialog(kDialog)->Click(kCheck);
    return true;
  });
  EXPECT_FALSE(HandlePendingMessages(false));
  EXPECT_EQ(Failure(), "Nobody answers the message \"No.\" (\"Error\").");
}

}  // namespace
}  // namespace host
