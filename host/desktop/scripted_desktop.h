#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "host/desktop/file_choice.h"
#include "host/desktop/modeless_dialogs.h"
#include "host/desktop/script_failure.h"
#include "host/desktop/scripted_dialog.h"
#include "platform/desktop.h"
#include "platform/export.h"

// A desktop whose user is a script: tests and the command line answer the plug-in's dialogs and
// messages with functions of their own. It is never silent about a question that stays open: a
// dialog or message that no function answers is a failure, and so is a dialog that its function
// leaves open, a choice that the system's dialogs do not allow, or a plug-in that waits for a user
// who has nothing left to do.

namespace host {

// A message box that was shown.
struct MessageBox {
  std::string text;
  std::string caption;
  platform::MessageBoxStyle style = platform::MessageBoxStyle::kOk;
  int answer = platform::kMessageBoxFailed;  // a MessageBoxResult, once it has been answered
};

// What the user does. Any function may throw anything: the desktop catches it, lets the plug-in
// see a dialog that could not be created or was cancelled, or a message that failed, and hands it
// out by RethrowFailure when the plug-in is done.
struct ScriptedUser {
  // Uses an open dialog until it has ended.
  std::function<void(ScriptedDialog&)> answer_dialog{};

  // Returns the button pressed (a MessageBoxResult that the box has).
  std::function<int(const MessageBox&)> answer_message{};

  // Chooses files, or none to cancel.
  std::function<FileChoice(const platform::FileDialog&)> choose_files{};

  // Chooses a folder in the dialog of that title; the empty path cancels.
  std::function<std::string(const std::string& title)> choose_folder{};

  // Does the next thing while the plug-in waits for him: uses a modeless dialog, picks in a
  // viewport. Returns false when he has nothing left to do.
  std::function<bool()> act{};
};

class SKELDER_API ScriptedDesktop final : public platform::Desktop {
 public:
  // `registry` stays the caller's and must outlive the desktop and every module loaded meanwhile.
  explicit ScriptedDesktop(platform::Registry& registry);
  ScriptedDesktop(const ScriptedDesktop&) = delete;
  ScriptedDesktop& operator=(const ScriptedDesktop&) = delete;
  ~ScriptedDesktop();

  // Who answers from now on. Nobody at first.
  void SetUser(ScriptedUser user);

  // From now on dialog `dialog_id` cannot be created, as if the system had run out of memory.
  void RefuseDialog(int dialog_id);

  // The modeless dialog `dialog_id` that is shown, or null. To the end of the desktop it may be
  // asked whether it has ended.
  ScriptedDialog* ShownDialog(int dialog_id);

  // All message boxes so far, in the order in which they were shown.
  [[nodiscard]] const std::vector<MessageBox>& Messages() const { return messages_; }

  // Throws the first failure, if there was one. After it nobody was asked any more: dialogs
  // were not created, nothing was chosen and messages failed. Call it when the plug-in has
  // returned.
  void RethrowFailure() const;

  int ShowMessage(const char* text, const char* caption, platform::MessageBoxStyle style) override;
  int RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                platform::DialogHandler& handler) override;
  platform::Dialog* CreateModeless(HINSTANCE module, int dialog_id, HWND parent,
                                   platform::DialogHandler& handler) override;
  void ShowModeless(platform::Dialog& dialog) override;
  void DestroyModeless(platform::Dialog& dialog) override;
  platform::Dialog* FindModeless(HWND window) override;

  // The user is let to act when he is awaited, or when a modeless dialog stands open.
  bool ProcessPendingMessages(bool awaited) override;

  bool ChooseFiles(const platform::FileDialog& dialog, char* buffer, std::size_t size,
                   std::size_t& name_offset) override;
  bool ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size) override;
  platform::Registry& CurrentUser() override;

 private:
  // The answer that `ask` gives, or `none` once there was a failure, which may be its own.
  template <typename Answer, typename Ask>
  Answer AnswerOr(Answer none, const Ask& ask);

  // What the resources of `module` say of dialog `dialog_id`; nothing when it is not to be created.
  std::optional<platform::DialogTemplate> TemplateOf(HINSTANCE module, int dialog_id) const;

  int AnswerOf(const MessageBox& message);
  void LetUserAnswer(int dialog_id, OpenDialog& dialog, platform::DialogHandler& handler);

  platform::Registry& registry_;
  ScriptedUser user_;
  std::set<int> refused_dialogs_;
  std::vector<MessageBox> messages_;
  ScriptFailure failure_;
  ModelessDialogs modeless_{failure_};
};

}  // namespace host
