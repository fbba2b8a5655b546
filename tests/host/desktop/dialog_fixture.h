#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <utility>
#include <vector>

#include "host/desktop/memory_registry.h"
#include "host/desktop/scripted_desktop.h"
#include "platform/portable/module_resources.h"
#include "tests/support/resource_builder.h"

namespace host {

// The controls of the dialog in the fixture.
enum Control : int {
  kOk = 1097,
  kCancel = 1098,
  kCheck = 10,
  kFirstRadio = 11,
  kSecondRadio = 12,
  kEdit = 13,
  kReadOnlyEdit = 14,
  kDisabledCheck = 15,
  kDisabledEdit = 16,
  kLabel = 17,
  kGroup = 18,
  kCustomEdit = 19,
  kAbsent = 99
};

inline constexpr int kDialog = 107;
inline constexpr int kPage = 116;  // with the check box alone

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
    return desktop.RunDialog(&module, kDialog, &parent, handler);
  }

  HWND__ parent;
  MemoryRegistry registry;
  ScriptedDesktop desktop{registry};
  RecordingHandler handler;
  std::function<int(const MessageBox&)> answer_message;
  const test::ResourceBytes resources = test::FileBytes(
      {test::EntryBytes(
           test::kDialogType, kDialog,
           test::DialogBytes(u"Options",
                             {
                                 {kCheck, test::kButton, 3, u"Check"},
                                 {kFirstRadio, test::kButton, 4, u"One"},
                                 {kSecondRadio, test::kButton, 4, u"Two"},
                                 {kEdit, test::kEdit, 0, u"text"},
                                 {kReadOnlyEdit, test::kEdit, 0x800, u""},
                                 {kDisabledCheck, test::kButton, 0x08000003, u"Disabled"},
                                 {kDisabledEdit, test::kEdit, 0x08000000, u""},
                                 {kLabel, test::kStatic, 0, u"Label"},
                                 {kGroup, test::kButton, 7, u"Group"},
                                 {kCustomEdit, 0, 0, u"", u"SKELDEREDIT"},
                                 {kOk, test::kButton, 1, u"&OK"},
                                 {kCancel, test::kButton, 0, u"&Cancel"},
                             })),
       test::EntryBytes(test::kDialogType, kPage,
                        test::DialogBytes(u"Page", {{kCheck, test::kButton, 3, u"Check"}},
                                          test::kChildDialog))});
  HINSTANCE__ module{resources};
};

}  // namespace host
