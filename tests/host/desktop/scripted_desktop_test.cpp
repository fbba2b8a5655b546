#include "host/desktop/scripted_desktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

#include "platform/message_box.h"
#include "tests/host/desktop/dialog_fixture.h"

namespace host {
namespace {

using platform::kDialogNotCreated;
using platform::MessageBoxStyle;
using testing::IsEmpty;
using testing::SizeIs;

class ScriptedDesktopTest : public DialogFixture {
 protected:
  // The text of the failure that is kept; empty when there is none.
  std::string Failure() const {
    try {
      desktop.RethrowFailure();
    } catch (const ScriptError& error) {
      return error.what();
    }
    return "";
  }

  int Ask(int answer) {
    ScriptedUser user;
    user.answer_message = [answer](const UserMessage&) { return answer; };
    desktop.SetUser(std::move(user));
    return platform::ShowMessageBox("Sure?", "Title", MessageBoxStyle::kYesNo);
  }
};

TEST_F(ScriptedDesktopTest, ReturnsTheResultOfADialog) {
  EXPECT_EQ(Run([](ScriptedDialog& dialog) { dialog.Click(kOk); }), 1);
  EXPECT_EQ(Run([](ScriptedDialog& dialog) { dialog.Click(kCancel); }), 0);
  EXPECT_EQ(Failure(), "");
}

TEST_F(ScriptedDesktopTest, AsksNobodyWhenTheHandlerEndsAtOnce) {
  handler.on_initialize = [](platform::Dialog& dialog) { dialog.End(7); };
  EXPECT_EQ(Run([](ScriptedDialog&) { ADD_FAILURE() << "asked"; }), 7);
  EXPECT_EQ(Failure(), "");
}

TEST_F(ScriptedDesktopTest, DialogThatTheModuleLacksIsNotCreated) {
  EXPECT_EQ(platform::RunModalDialog(module, 108, nullptr, handler), kDialogNotCreated);
  EXPECT_EQ(Failure(), "");
}

TEST_F(ScriptedDesktopTest, RefusedDialogIsNotCreatedAndItsHandlerNotCalled) {
  desktop.RefuseDialog(kDialog);
  handler.on_initialize = [](platform::Dialog&) { ADD_FAILURE() << "initialized"; };
  EXPECT_EQ(Run([](ScriptedDialog&) { ADD_FAILURE() << "asked"; }), kDialogNotCreated);
  EXPECT_EQ(Failure(), "");
}

TEST_F(ScriptedDesktopTest, DialogThatNobodyAnswersIsAFailure) {
  EXPECT_EQ(Run(nullptr), kDialogNotCreated);
  EXPECT_EQ(Failure(), "Nobody answers the dialog \"Options\".");
}

TEST_F(ScriptedDesktopTest, DialogLeftOpenIsAFailure) {
  EXPECT_EQ(Run([](ScriptedDialog& dialog) { dialog.Click(kCheck); }), kDialogNotCreated);
  EXPECT_EQ(Failure(), "The script left the dialog \"Options\" open.");
}

TEST_F(ScriptedDesktopTest, ImpossibleActionEndsTheScriptAndTheDialog) {
  EXPECT_EQ(Run([](ScriptedDialog& dialog) {
              dialog.Click(kDisabledCheck);
              ADD_FAILURE() << "went on";
            }),
            kDialogNotCreated);
  EXPECT_EQ(Failure(), "Control 15 of the dialog \"Options\" is disabled.");
}

TEST_F(ScriptedDesktopTest, HandsOutAnExceptionOfTheScriptsOwnType) {
  Run([](ScriptedDialog&) { throw std::invalid_argument("wrong flag"); });
  EXPECT_THROW(desktop.RethrowFailure(), std::invalid_argument);
  EXPECT_THROW(desktop.RethrowFailure(), std::invalid_argument) << "it stays";
}

TEST_F(ScriptedDesktopTest, FailureAfterTheEndOfTheDialogCountsToo) {
  EXPECT_EQ(Run([](ScriptedDialog& dialog) {
              dialog.Click(kOk);
              throw ScriptError("late");
            }),
            kDialogNotCreated);
  EXPECT_EQ(Failure(), "late");
}

TEST_F(ScriptedDesktopTest, AsksNobodyAfterAFailure) {
  Run(nullptr);
  const std::string first = Failure();
  EXPECT_EQ(Run([](ScriptedDialog&) { ADD_FAILURE() << "asked"; }), kDialogNotCreated);
  EXPECT_EQ(Ask(platform::kMessageBoxYes), platform::kMessageBoxFailed);
  EXPECT_EQ(Failure(), first);
}

TEST_F(ScriptedDesktopTest, RecordsMessagesWithTheirAnswers) {
  EXPECT_THAT(desktop.Messages(), IsEmpty());
  EXPECT_EQ(Ask(platform::kMessageBoxNo), platform::kMessageBoxNo);
  EXPECT_EQ(Ask(platform::kMessageBoxYes), platform::kMessageBoxYes);
  ASSERT_THAT(desktop.Messages(), SizeIs(2));
  const UserMessage& message = desktop.Messages()[0];
  EXPECT_EQ(message.text, "Sure?");
  EXPECT_EQ(message.caption, "Title");
  EXPECT_EQ(message.style, MessageBoxStyle::kYesNo);
  EXPECT_EQ(message.answer, platform::kMessageBoxNo);
  EXPECT_EQ(desktop.Messages()[1].answer, platform::kMessageBoxYes);
}

TEST_F(ScriptedDesktopTest, ShowsTheUserTheMessage) {
  ScriptedUser user;
  user.answer_message = [](const UserMessage& message) {
    EXPECT_EQ(message.text, "Text");
    EXPECT_EQ(message.caption, "Title");
    EXPECT_EQ(message.style, MessageBoxStyle::kOk);
    return platform::kMessageBoxOk;
  };
  desktop.SetUser(std::move(user));
  EXPECT_EQ(platform::ShowMessageBox("Text", "Title", MessageBoxStyle::kOk),
            platform::kMessageBoxOk);
}

TEST_F(ScriptedDesktopTest, MessageThatNobodyAnswersIsAFailure) {
  EXPECT_EQ(platform::ShowMessageBox("Text", "Title", MessageBoxStyle::kOk),
            platform::kMessageBoxFailed);
  EXPECT_EQ(Failure(), "Nobody answers the message \"Text\" (\"Title\").");
  ASSERT_THAT(desktop.Messages(), SizeIs(1));
  EXPECT_EQ(desktop.Messages()[0].answer, platform::kMessageBoxFailed);
}

TEST_F(ScriptedDesktopTest, ButtonThatTheMessageLacksIsAFailure) {
  EXPECT_EQ(Ask(platform::kMessageBoxOk), platform::kMessageBoxFailed);
  EXPECT_EQ(Failure(), "There is no button 1 on the message \"Sure?\" (\"Title\").");
}

TEST_F(ScriptedDesktopTest, MessageFromWithinADialogIsAnswered) {
  answer_message = [](const UserMessage&) { return platform::kMessageBoxOk; };
  handler.on_command = [](platform::Dialog&, int control) {
    if (control == kCheck) platform::ShowMessageBox("No.", "Error", MessageBoxStyle::kOk);
  };
  EXPECT_EQ(Run([](ScriptedDialog& dialog) {
              dialog.Click(kCheck);
              dialog.Click(kOk);
            }),
            1);
  EXPECT_EQ(Failure(), "");
}

TEST_F(ScriptedDesktopTest, FailedMessageFromWithinADialogEndsItsScript) {
  handler.on_command = [](platform::Dialog&, int) {
    platform::ShowMessageBox("No.", "Error", MessageBoxStyle::kOk);
  };
  EXPECT_EQ(Run([](ScriptedDialog& dialog) {
              dialog.Click(kCheck);
              ADD_FAILURE() << "went on";
            }),
            kDialogNotCreated);
  EXPECT_EQ(Failure(), "Nobody answers the message \"No.\" (\"Error\").");
}

TEST_F(ScriptedDesktopTest, FailedMessageWhileADialogOpensLeavesTheScriptOut) {
  handler.on_initialize = [](platform::Dialog&) {
    platform::ShowMessageBox("No.", "Error", MessageBoxStyle::kOk);
  };
  EXPECT_EQ(Run([](ScriptedDialog&) { ADD_FAILURE() << "asked"; }), kDialogNotCreated);
}

TEST_F(ScriptedDesktopTest, DialogOverADialogIsAnsweredByTheSameUser) {
  RecordingHandler inner;
  handler.on_command = [&](platform::Dialog& dialog, int control) {
    if (control == kCheck) {
      EXPECT_EQ(platform::RunModalDialog(module, kDialog, dialog.Window(), inner), 0);
    }
  };
  int depth = 0;
  EXPECT_EQ(Run([&](ScriptedDialog& dialog) {
              if (++depth == 2) return dialog.Click(kCancel);
              dialog.Click(kCheck);
              dialog.Click(kOk);
            }),
            1);
  EXPECT_EQ(Failure(), "");
  EXPECT_EQ(depth, 2);
}

}  // namespace
}  // namespace host
