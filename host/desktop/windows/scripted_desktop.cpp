#include "host/desktop/scripted_desktop.h"

#include <utility>

#include "host/desktop/windows/windows_user.h"

namespace host {

class ScriptedDesktop::Body {
 public:
  WindowsUser user;
};

ScriptedDesktop::ScriptedDesktop() : body_(std::make_unique<Body>()) {}

ScriptedDesktop::~ScriptedDesktop() = default;

void ScriptedDesktop::SetUser(ScriptedUser user) { body_->user.Script().SetUser(std::move(user)); }

void ScriptedDesktop::RefuseDialog(int dialog_id) { body_->user.Refused().Refuse(dialog_id); }

ScriptedDialog* ScriptedDesktop::ShownDialog(int dialog_id) {
  return body_->user.ShownDialog(dialog_id);
}

const std::vector<UserMessage>& ScriptedDesktop::Messages() const {
  return body_->user.Script().Messages();
}

void ScriptedDesktop::RethrowFailure() const { body_->user.Script().Failure().Rethrow(); }

}  // namespace host
