#pragma once

#include <memory>
#include <vector>

#include "host/desktop/script_failure.h"
#include "host/desktop/scripted_dialog.h"
#include "host/desktop/scripted_user.h"
#include "platform/export.h"

// A desktop whose user is a script: tests and the command line answer the plug-in's dialogs and
// messages with functions of their own. It is never silent about a question that stays open: a
// dialog or message that no function answers is a failure, and so is a dialog that its function
// leaves open, a choice that the system's dialogs do not allow, or a plug-in that waits for a user
// who has nothing left to do.

namespace host {

class SKELDER_API ScriptedDesktop {
 public:
  // In use from now on, and until it is destroyed; then the one that was in use before is again.
  // Have it in use before a module is loaded.
  // REQUIRES: desktops are destroyed in reverse order.
  ScriptedDesktop();
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
  [[nodiscard]] const std::vector<UserMessage>& Messages() const;

  // Throws the first failure, if there was one. After it nobody was asked any more: dialogs
  // were not created, nothing was chosen and messages failed. Call it when the plug-in has
  // returned.
  void RethrowFailure() const;

 private:
  class Body;

  std::unique_ptr<Body> body_;
};

}  // namespace host
