#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

#include "host/desktop/scripted_desktop.h"
#include "host/desktop/top_level_window.h"
#include "platform/dialog.h"
#include "tests/host/desktop/fixture_module.h"

namespace host {

// What a dialog does, told by functions; notes the commands that it got.
class RecordingHandler final : public platform::DialogHandler {
 public:
  std::function<void(platform::Dialog&)> on_initialize;
  std::function<void(platform::Dialog&, int)> on_command;
  std::vector<int> commands;

  void Initialize(platform::Dialog& dialog) override {
    if (on_initialize) on_initialize(dialog);
  }

  void Command(platform::Dialog& dialog, int control) override {
    commands.push_back(control);
    if (on_command) on_command(dialog, control);
    if (control == kOk) dialog.End(1);
    if (control == kCancel) dialog.End(0);
  }
};

// A scripted desktop, and a module with a dialog that has a control of each kind, and a page.
class DialogFixture : public testing::Test {
 protected:
  // Runs the dialog with `script` for a user; returns its result.
  int Run(std::function<void(ScriptedDialog&)> script) {
    ScriptedUser user;
    user.answer_dialog = std::move(script);
    user.answer_message = answer_message;
    desktop.SetUser(std::move(user));
    return platform::RunModalDialog(module, kDialog, parent.Handle(), handler);
  }

  const TopLevelWindow parent;
  ScriptedDesktop desktop;
  RecordingHandler handler;
  std::function<int(const UserMessage&)> answer_message;
  HINSTANCE module = FixtureModule();
};

}  // namespace host
