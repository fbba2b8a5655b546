#pragma once

#include <gtest/gtest.h>

#include "host/desktop/top_level_window.h"
#include "platform/module.h"
#include "plugin/resources/resource.h"
#include "plugin/services/message_sink.h"
#include "tests/support/desk.h"

// What the tests of every options dialog begin with: the options, a desk with a scripted user, and
// a way to show the one to the other.
namespace test {

template <typename OptionsDialog, typename Options>
class OptionsDialogFixture : public testing::Test {
 protected:
  // The bounds that most tests start from.
  void SetUp() override {
    options_.startFrame = 1;
    options_.endFrame = 100;
  }

  void TearDown() override {
    desk_.desktop().RethrowFailure();
    EXPECT_TRUE(desk_.AllAnswered());
  }

  OptionsDialog Dialog() {
    return OptionsDialog(options_, sink_, parent_.Handle(), platform::ModuleHandle());
  }

  // Shows the dialog to `user`; a dialog that the user leaves open is cancelled.
  bool Show(const Desk::DialogAnswer& user) {
    constexpr int kCancel = IDC_CANCEL;
    desk_.Expect([&user](host::ScriptedDialog& dialog) {
      user(dialog);
      if (!dialog.HasEnded()) dialog.Click(kCancel);
    });
    return Dialog().Show();
  }

  Desk desk_;
  host::TopLevelWindow parent_;
  Options options_;
  orvane::MessageSink sink_;
};

}  // namespace test
