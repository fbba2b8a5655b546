#include "host/desktop/portable/live_desktop.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <deque>
#include <functional>
#include <utility>

#include "host/desktop/pending_messages.h"
#include "platform/dialog.h"
#include "tests/host/desktop/dialog_fixture.h"

namespace host {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

// Does what he was told to, one thing a turn.
class PersonWithPlan final : public LivePerson {
 public:
  void Act(bool awaited) override {
    if (!awaited && plan.empty()) return;
    ASSERT_FALSE(plan.empty()) << "the desktop waits, and nothing is planned";
    const std::function<void()> step = std::move(plan.front());
    plan.pop_front();
    step();
  }

  std::deque<std::function<void()>> plan;
};

class LiveDesktopTest : public testing::Test {
 protected:
  int Run() { return platform::RunModalDialog(module, kDialog, nullptr, handler); }

  const LiveDialog& Top() const { return *desktop.Dialogs().back(); }
  std::string Use(int control) { return desktop.Use(Top().number, control); }

  PersonWithPlan person;
  LiveDesktop desktop{person};
  RecordingHandler handler;
  HINSTANCE module = FixtureModule();
};

TEST_F(LiveDesktopTest, WaitsInTheDialogUntilItsHandlerEndsIt) {
  person.plan = {[this] {
                   EXPECT_EQ(Top().id, kDialog);
                   EXPECT_TRUE(Top().modal);
                   EXPECT_EQ(Top().made_of.title, "Options");
                   EXPECT_EQ(Use(kCheck), "");
                   EXPECT_TRUE(Top().dialog.Controls()[0].state.checked);
                 },
                 [this] { EXPECT_EQ(desktop.Type(Top().number, kEdit, "12"), ""); },
                 [this] { EXPECT_EQ(Use(kOk), ""); }};
  EXPECT_EQ(Run(), 1);
  EXPECT_THAT(handler.commands, testing::ElementsAre(kCheck, kOk));
  EXPECT_THAT(desktop.Dialogs(), IsEmpty());
}

TEST_F(LiveDesktopTest, EscapeIsAnsweredByTheHandlerAlone) {
  person.plan = {[this] {
                   EXPECT_EQ(Use(platform::kCloseControl), "");
                   EXPECT_THAT(desktop.Dialogs(), SizeIs(1));
                 },
                 [this] { EXPECT_EQ(Use(kCancel), ""); }};
  EXPECT_EQ(Run(), 0);
  EXPECT_THAT(handler.commands, testing::ElementsAre(platform::kCloseControl, kCancel));
}

TEST_F(LiveDesktopTest, RefusesInWordsWhatNobodyCouldDo) {
  person.plan = {
      [this] {
        EXPECT_EQ(Use(kDisabledCheck), "The control is disabled");
        EXPECT_EQ(Use(kAbsent), "The dialog has no such control");
        EXPECT_EQ(Use(kLabel), "The control is nothing to click");
        EXPECT_EQ(desktop.Type(Top().number, kReadOnlyEdit, "x"),
                  "The control is nothing to type into");
        EXPECT_EQ(desktop.Use(Top().number + 1, kOk), "A dialog is open");
        EXPECT_EQ(desktop.Answer(1, platform::kMessageBoxOk), "It is not there any more");
        EXPECT_EQ(Use(kOk), "");
      },
  };
  EXPECT_EQ(Run(), 1);
  EXPECT_EQ(desktop.Use(1, kOk), "It is not there any more");
  EXPECT_EQ(desktop.WhyHeld(), "");
}

TEST_F(LiveDesktopTest, AMessageOverADialogIsAnsweredFirst) {
  handler.on_command = [](platform::Dialog&, int control) {
    if (control != kCheck) return;
    EXPECT_EQ(platform::ShowMessageBox("Go on?", "Options", platform::MessageBoxStyle::kYesNo),
              platform::kMessageBoxNo);
  };
  person.plan = {[this] { EXPECT_EQ(Use(kCheck), ""); },
                 [this] {
                   ASSERT_NE(desktop.Message(), nullptr);
                   const int box = desktop.Message()->number;
                   EXPECT_EQ(desktop.Message()->text, "Go on?");
                   EXPECT_EQ(Use(kOk), "A message waits for its answer");
                   EXPECT_EQ(desktop.Answer(box, platform::kMessageBoxOk),
                             "The message has no such button");
                   EXPECT_EQ(desktop.Answer(box, platform::kMessageBoxNo), "");
                 },
                 [this] { EXPECT_EQ(Use(kOk), ""); }};
  EXPECT_EQ(Run(), 1);
}

TEST_F(LiveDesktopTest, AModelessDialogIsUsedWhileTheProgramGoesOn) {
  const platform::ModelessDialog page =
      platform::CreateModelessDialog(module, kPage, nullptr, handler);
  EXPECT_THAT(desktop.Dialogs(), IsEmpty());
  platform::ShowModelessDialog(*page);
  ASSERT_THAT(desktop.Dialogs(), SizeIs(1));
  EXPECT_FALSE(Top().modal);
  EXPECT_TRUE(HandlePendingMessages(false));
  person.plan = {[this] { EXPECT_EQ(Use(kCheck), ""); }};
  EXPECT_TRUE(HandlePendingMessages(true));
  EXPECT_THAT(handler.commands, testing::ElementsAre(kCheck));
}

TEST_F(LiveDesktopTest, AFolderAndAFileAreChosenAndWhatIsNoneIsRefused) {
  std::array<char, 4096> buffer{};
  std::size_t name_offset = 0;
  platform::FileDialog files;
  files.title = "Open";
  files.file_must_exist = true;
  person.plan = {[this] {
    ASSERT_NE(desktop.Choice(), nullptr);
    EXPECT_EQ(desktop.Choice()->title, "Open");
    EXPECT_THAT(desktop.Choose(desktop.Choice()->number, {"absent.trc"}),
                HasSubstr("absent.trc does not exist"));
    EXPECT_EQ(desktop.Choose(desktop.Choice()->number, {}), "");
  }};
  EXPECT_FALSE(platform::ChooseFiles(files, buffer.data(), buffer.size(), name_offset));
  person.plan = {[this] {
    EXPECT_EQ(desktop.Choice()->files, nullptr);
    EXPECT_EQ(desktop.Choose(desktop.Choice()->number, {"/"}), "");
  }};
  EXPECT_TRUE(platform::ChooseFolder(nullptr, "Where", buffer.data(), buffer.size()));
  EXPECT_STREQ(buffer.data(), "/");
}

}  // namespace
}  // namespace host
