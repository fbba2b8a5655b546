#include "host/desktop/scripted_dialog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <string>

#include "sdk/skelderutil/custom_edit.h"
#include "sdk/skelderutil/window.h"
#include "tests/host/desktop/dialog_fixture.h"

namespace host {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string TextOf(platform::Dialog& dialog, int control) {
  std::array<char, 64> buffer{};
  const std::size_t length = dialog.GetText(control, buffer.data(), buffer.size());
  return std::string(buffer.data(), length);
}

using ScriptedDialogTest = DialogFixture;

TEST_F(ScriptedDialogTest, ShowsTheTemplate) {
  Run([](ScriptedDialog& dialog) {
    EXPECT_EQ(dialog.Id(), kDialog);
    EXPECT_EQ(dialog.Title(), "Options");
    EXPECT_EQ(dialog.Controls().size(), 12U);
    EXPECT_EQ(dialog.Controls()[0].id, kCheck);
    EXPECT_EQ(dialog.Controls()[0].kind, platform::ControlKind::kCheckBox);
    EXPECT_EQ(dialog.Text(kEdit), "text");
    EXPECT_EQ(dialog.Text(kOk), "&OK");
    EXPECT_TRUE(dialog.IsEnabled(kCheck));
    EXPECT_FALSE(dialog.IsEnabled(kDisabledCheck));
    EXPECT_FALSE(dialog.IsChecked(kCheck));
    EXPECT_TRUE(dialog.Has(kLabel));
    EXPECT_FALSE(dialog.Has(kAbsent));
    EXPECT_FALSE(dialog.HasEnded());
    dialog.Click(kOk);
  });
  desktop.RethrowFailure();
}

TEST_F(ScriptedDialogTest, ShowsWhatTheHandlerFillsIn) {
  handler.on_initialize = [](platform::Dialog& dialog) {
    dialog.SetText(kEdit, "1.000000");
    dialog.SetChecked(kCheck, true);
    dialog.SetEnabled(kFirstRadio, false);
    dialog.SetEnabled(kDisabledCheck, true);
  };
  Run([](ScriptedDialog& dialog) {
    EXPECT_EQ(dialog.Text(kEdit), "1.000000");
    EXPECT_TRUE(dialog.IsChecked(kCheck));
    EXPECT_FALSE(dialog.IsEnabled(kFirstRadio));
    EXPECT_TRUE(dialog.IsEnabled(kDisabledCheck));
    dialog.Click(kOk);
  });
  desktop.RethrowFailure();
}

TEST_F(ScriptedDialogTest, HandlerReadsWhatTheUserDid) {
  std::string text;
  bool checked = false;
  handler.on_command = [&](platform::Dialog& dialog, int control) {
    if (control != kOk) return;
    text = TextOf(dialog, kEdit);
    checked = dialog.IsChecked(kCheck);
  };
  EXPECT_EQ(Run([](ScriptedDialog& dialog) {
              dialog.Type(kEdit, "-12.5");
              dialog.Click(kCheck);
              dialog.Click(kOk);
            }),
            1);
  EXPECT_EQ(text, "-12.5");
  EXPECT_TRUE(checked);
  EXPECT_THAT(handler.commands, ElementsAre(kCheck, kOk)) << "typing is no command";
}

TEST_F(ScriptedDialogTest, CheckBoxHasChangedWhenTheHandlerHears) {
  std::vector<bool> states;
  handler.on_command = [&](platform::Dialog& dialog, int control) {
    if (control == kCheck) states.push_back(dialog.IsChecked(kCheck));
  };
  Run([](ScriptedDialog& dialog) {
    dialog.Click(kCheck);
    dialog.Click(kCheck);
    dialog.Click(kOk);
  });
  EXPECT_THAT(states, ElementsAre(true, false));
}

TEST_F(ScriptedDialogTest, RadioButtonsAreSelectedByTheHandlerAlone) {
  handler.on_command = [&](platform::Dialog& dialog, int control) {
    if (control == kSecondRadio) dialog.SetChecked(kSecondRadio, true);
  };
  Run([](ScriptedDialog& dialog) {
    dialog.Click(kFirstRadio);
    EXPECT_FALSE(dialog.IsChecked(kFirstRadio));
    dialog.Click(kSecondRadio);
    EXPECT_TRUE(dialog.IsChecked(kSecondRadio));
    dialog.Click(kOk);
  });
  EXPECT_THAT(handler.commands, ElementsAre(kFirstRadio, kSecondRadio, kOk));
}

TEST_F(ScriptedDialogTest, EscapeArrivesAsTheCloseControl) {
  Run([](ScriptedDialog& dialog) {
    dialog.PressEscape();
    EXPECT_FALSE(dialog.HasEnded());
    dialog.Click(kCancel);
  });
  EXPECT_THAT(handler.commands, ElementsAre(2, kCancel));
}

TEST_F(ScriptedDialogTest, HandlerMayAskForControlsThatAreAbsent) {
  handler.on_initialize = [](platform::Dialog& dialog) {
    dialog.SetText(kAbsent, "x");
    dialog.SetChecked(kAbsent, true);
    dialog.SetEnabled(kAbsent, false);
    EXPECT_FALSE(dialog.IsChecked(kAbsent));
    EXPECT_EQ(TextOf(dialog, kAbsent), "");
  };
  EXPECT_EQ(Run([](ScriptedDialog& dialog) { dialog.Click(kOk); }), 1);
}

TEST_F(ScriptedDialogTest, GivesEveryControlAWindowOfItsOwn) {
  handler.on_initialize = [](platform::Dialog& dialog) {
    ASSERT_NE(dialog.ControlWindow(kEdit), nullptr);
    EXPECT_NE(dialog.ControlWindow(kEdit), dialog.ControlWindow(kCheck));
    EXPECT_EQ(dialog.ControlWindow(kAbsent), nullptr);
    EXPECT_EQ(GetICustEdit(dialog.ControlWindow(kEdit)), nullptr);
    EXPECT_EQ(GetICustEdit(dialog.Window()), nullptr);
  };
  EXPECT_EQ(Run([](ScriptedDialog& dialog) { dialog.Click(kOk); }), 1);
}

TEST_F(ScriptedDialogTest, ReadsNumbersFromTheHostsOwnEditControl) {
  float number = 0.0F;
  bool valid = false;
  handler.on_command = [&](platform::Dialog& dialog, int) {
    ICustEdit* const edit = GetICustEdit(dialog.ControlWindow(kCustomEdit));
    ASSERT_NE(edit, nullptr);
    number = edit->GetFloat(&valid);
    EXPECT_EQ(edit->GetFloat(), number);
    ReleaseICustEdit(edit);
  };
  const auto type = [this](const char* text) {
    Run([text](ScriptedDialog& dialog) {
      dialog.Type(kCustomEdit, text);
      dialog.Click(kOk);
    });
    desktop.RethrowFailure();
  };
  type(" -1.5 ");
  EXPECT_TRUE(valid);
  EXPECT_EQ(number, -1.5F);
  type("much");
  EXPECT_FALSE(valid);
  EXPECT_EQ(number, 0.0F);
}

TEST_F(ScriptedDialogTest, ShowsTheTextOfTheHostsOwnEditControl) {
  handler.on_initialize = [](platform::Dialog& dialog) {
    GetICustEdit(dialog.ControlWindow(kCustomEdit))->SetText("0.500000");
  };
  EXPECT_EQ(Run([](ScriptedDialog& dialog) {
              EXPECT_EQ(dialog.Text(kCustomEdit), "0.500000");
              dialog.Click(kOk);
            }),
            1);
}

TEST_F(ScriptedDialogTest, CutsTextsToTheBufferOfTheHandler) {
  handler.on_initialize = [](platform::Dialog& dialog) {
    std::array<char, 4> buffer{'#', '#', '#', '#'};
    EXPECT_EQ(dialog.GetText(kEdit, buffer.data(), 3), 2U);
    EXPECT_STREQ(buffer.data(), "te");
    EXPECT_EQ(buffer[3], '#');
    EXPECT_EQ(dialog.GetText(kEdit, buffer.data(), 1), 0U);
    EXPECT_STREQ(buffer.data(), "");
  };
  Run([](ScriptedDialog& dialog) { dialog.Click(kOk); });
}

TEST_F(ScriptedDialogTest, TellsWhatItWasCentredOver) {
  Run([](ScriptedDialog& dialog) {
    EXPECT_EQ(dialog.CenteredOver(), nullptr);
    dialog.Click(kOk);
  });
  handler.on_initialize = [this](platform::Dialog& dialog) {
    CenterWindow(dialog.Window(), parent.Handle());
  };
  Run([this](ScriptedDialog& dialog) {
    EXPECT_EQ(dialog.Owner(), parent.Handle());
    EXPECT_EQ(dialog.CenteredOver(), parent.Handle());
    dialog.Click(kOk);
  });
  CenterWindow(nullptr, parent.Handle());
}

struct RefusalCase {
  std::string reason;
  std::function<void(ScriptedDialog&)> action;
};

TEST_F(ScriptedDialogTest, RefusesWhatNobodyCouldDo) {
  const RefusalCase cases[] = {
      {"Control 15 of the dialog \"Options\" is disabled.",
       [](ScriptedDialog& dialog) { dialog.Click(kDisabledCheck); }},
      {"Control 16 of the dialog \"Options\" is disabled.",
       [](ScriptedDialog& dialog) { dialog.Type(kDisabledEdit, "x"); }},
      {"Control 14 of the dialog \"Options\" is read-only.",
       [](ScriptedDialog& dialog) { dialog.Type(kReadOnlyEdit, "x"); }},
      {"Control 10 of the dialog \"Options\" is nothing to type into.",
       [](ScriptedDialog& dialog) { dialog.Type(kCheck, "x"); }},
      {"Control 13 of the dialog \"Options\" is nothing to click.",
       [](ScriptedDialog& dialog) { dialog.Click(kEdit); }},
      {"Control 17 of the dialog \"Options\" is nothing to click.",
       [](ScriptedDialog& dialog) { dialog.Click(kLabel); }},
      {"Control 18 of the dialog \"Options\" is nothing to click.",
       [](ScriptedDialog& dialog) { dialog.Click(kGroup); }},
      {"Control 99 of the dialog \"Options\" does not exist.",
       [](ScriptedDialog& dialog) { dialog.Click(kAbsent); }},
      {"Control 99 of the dialog \"Options\" does not exist.",
       [](ScriptedDialog& dialog) { dialog.Type(kAbsent, "x"); }},
      {"Control 99 of the dialog \"Options\" does not exist.",
       [](ScriptedDialog& dialog) { static_cast<void>(dialog.Text(kAbsent)); }},
      {"Control 99 of the dialog \"Options\" does not exist.",
       [](ScriptedDialog& dialog) { static_cast<void>(dialog.IsChecked(kAbsent)); }},
      {"Control 99 of the dialog \"Options\" does not exist.",
       [](ScriptedDialog& dialog) { static_cast<void>(dialog.IsEnabled(kAbsent)); }},
  };
  for (const RefusalCase& test_case : cases) {
    Run([&](ScriptedDialog& dialog) {
      try {
        test_case.action(dialog);
        ADD_FAILURE() << "allowed: " << test_case.reason;
      } catch (const ScriptError& error) {
        EXPECT_EQ(error.what(), test_case.reason);
      }
      EXPECT_THAT(handler.commands, IsEmpty());
      dialog.Click(kOk);
    });
    handler.commands.clear();
  }
}

TEST_F(ScriptedDialogTest, RefusesEverythingAfterTheEnd) {
  Run([](ScriptedDialog& dialog) {
    dialog.Click(kOk);
    EXPECT_TRUE(dialog.HasEnded());
    EXPECT_THROW(dialog.Click(kOk), ScriptError);
    EXPECT_THROW(dialog.Type(kEdit, "x"), ScriptError);
    EXPECT_THROW(dialog.PressEscape(), ScriptError);
  });
  EXPECT_THAT(handler.commands, ElementsAre(kOk));
}

}  // namespace
}  // namespace host
