#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "host/desktop/script_failure.h"
#include "host/desktop/scripted_user.h"

// What a scripted user answers, whatever desktop he sits in front of: he is asked until something
// fails, and from then on nobody is.

namespace host {

class UserScript {
 public:
  UserScript() = default;
  UserScript(const UserScript&) = delete;
  UserScript& operator=(const UserScript&) = delete;

  void SetUser(ScriptedUser user) { user_ = std::move(user); }
  [[nodiscard]] const std::vector<UserMessage>& Messages() const { return messages_; }
  [[nodiscard]] ScriptFailure& Failure() { return failure_; }
  [[nodiscard]] const ScriptFailure& Failure() const { return failure_; }

  // Notes the message and returns the button that the user presses, or kMessageBoxFailed.
  [[nodiscard]] int AnswerMessage(std::string text, std::string caption,
                                  platform::MessageBoxStyle style);

  // Lets the user use `dialog`, which is open, until it has ended. Returns false on failure.
  bool UseDialog(ScriptedDialog& dialog);

  // Let the user choose, and hand what he chose to `take`, which may throw a ScriptError. Return
  // false when he cancels, and on failure; otherwise what `take` returns.
  [[nodiscard]] bool ChooseFiles(const ShownFileDialog& dialog,
                                 const std::function<bool(const FileChoice&)>& take);
  [[nodiscard]] bool ChooseFolder(const std::string& title,
                                  const std::function<bool(const std::string&)>& take);

  // Lets the user act, who is awaited. Returns false when he has nothing left to do, which is a
  // failure, and on any other.
  [[nodiscard]] bool Act();

 private:
  // The answer that `ask` gives, or `none` once there was a failure, which may be its own.
  template <typename Answer, typename Ask>
  Answer AnswerOr(Answer none, const Ask& ask);

  [[nodiscard]] int AnswerOf(const UserMessage& message) const;

  ScriptedUser user_;
  std::vector<UserMessage> messages_;
  ScriptFailure failure_;
};

}  // namespace host
