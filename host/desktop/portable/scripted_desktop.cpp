#include "host/desktop/scripted_desktop.h"

#include <cassert>
#include <cstddef>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "host/desktop/portable/modeless_dialogs.h"
#include "host/desktop/portable/open_dialog_user.h"
#include "host/desktop/portable/resolved_choice.h"
#include "host/desktop/user_script.h"
#include "platform/desktop.h"
#include "platform/portable/module_resources.h"
#include "platform/portable/resource_file.h"

namespace host {

// What the platform's functions come to.
class ScriptedDesktop::Body final : public platform::Desktop {
 public:
  Body() { platform::InstallDesktop(this); }
  Body(const Body&) = delete;
  Body& operator=(const Body&) = delete;
  ~Body() {
    assert(platform::CurrentDesktop() == this);
    platform::InstallDesktop(previous_);
  }

  UserScript& Script() { return script_; }
  void RefuseDialog(int dialog_id) { refused_dialogs_.insert(dialog_id); }
  ScriptedDialog* ShownDialog(int dialog_id) { return modeless_.FindShown(dialog_id); }

  int ShowMessage(const char* text, const char* caption, platform::MessageBoxStyle style) override;
  int RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                platform::DialogHandler& handler) override;
  platform::Dialog* CreateModeless(HINSTANCE module, int dialog_id, HWND parent,
                                   platform::DialogHandler& handler) override;
  void ShowModeless(platform::Dialog& dialog) override { modeless_.Show(dialog); }
  void DestroyModeless(platform::Dialog& dialog) override { modeless_.Destroy(dialog); }
  platform::Dialog* FindModeless(HWND window) override { return modeless_.FindByWindow(window); }
  bool ProcessPendingMessages(bool awaited) override;
  bool ChooseFiles(const platform::FileDialog& dialog, char* buffer, std::size_t size,
                   std::size_t& name_offset) override;
  bool ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size) override;

 private:
  // What the resources of `module` say of dialog `dialog_id`; nothing when it is not to be created.
  [[nodiscard]] std::optional<platform::DialogTemplate> TemplateOf(HINSTANCE module,
                                                                   int dialog_id) const;

  platform::Desktop* previous_ = platform::CurrentDesktop();
  UserScript script_;
  std::set<int> refused_dialogs_;
  ModelessDialogs modeless_{script_.Failure()};
};

int ScriptedDesktop::Body::ShowMessage(const char* text, const char* caption,
                                       platform::MessageBoxStyle style) {
  return script_.AnswerMessage(text, caption, style);
}

bool ScriptedDesktop::Body::ChooseFiles(const platform::FileDialog& dialog, char* buffer,
                                        std::size_t size, std::size_t& name_offset) {
  return script_.ChooseFiles({dialog.title, dialog.filter_name}, [&](const FileChoice& choice) {
    return ResolveChoice(dialog, choice).Write(buffer, size, name_offset);
  });
}

bool ScriptedDesktop::Body::ChooseFolder(HWND /*owner*/, const char* title, char* buffer,
                                         std::size_t size) {
  return script_.ChooseFolder(
      title, [&](const std::string& folder) { return WriteFolder(title, folder, buffer, size); });
}

std::optional<platform::DialogTemplate> ScriptedDesktop::Body::TemplateOf(HINSTANCE module,
                                                                          int dialog_id) const {
  if (script_.Failure().HasHappened() || refused_dialogs_.count(dialog_id) > 0) return {};
  return platform::FindDialog(platform::ResourceFileOf(module),
                              static_cast<unsigned int>(dialog_id));
}

platform::Dialog* ScriptedDesktop::Body::CreateModeless(HINSTANCE module, int dialog_id,
                                                        HWND parent,
                                                        platform::DialogHandler& handler) {
  const std::optional<platform::DialogTemplate> dialog_template = TemplateOf(module, dialog_id);
  if (!dialog_template) return nullptr;
  return &modeless_.Create(dialog_id, *dialog_template, parent, handler);
}

bool ScriptedDesktop::Body::ProcessPendingMessages(bool awaited) {
  if (script_.Failure().HasHappened()) return false;
  return (!awaited && !modeless_.AnyWaiting()) || script_.Act();
}

int ScriptedDesktop::Body::RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                                     platform::DialogHandler& handler) {
  const std::optional<platform::DialogTemplate> dialog_template = TemplateOf(module, dialog_id);
  if (!dialog_template) return platform::kDialogNotCreated;

  OpenDialog dialog(*dialog_template, parent, true);
  handler.Initialize(dialog);
  OpenDialogUser user_side(dialog_id, dialog, handler, script_.Failure());
  if (!dialog.HasEnded()) script_.UseDialog(user_side);
  return script_.Failure().HasHappened() ? platform::kDialogNotCreated : dialog.Result();
}

ScriptedDesktop::ScriptedDesktop() : body_(std::make_unique<Body>()) {}

ScriptedDesktop::~ScriptedDesktop() = default;

void ScriptedDesktop::SetUser(ScriptedUser user) { body_->Script().SetUser(std::move(user)); }

void ScriptedDesktop::RefuseDialog(int dialog_id) { body_->RefuseDialog(dialog_id); }

ScriptedDialog* ScriptedDesktop::ShownDialog(int dialog_id) {
  return body_->ShownDialog(dialog_id);
}

const std::vector<UserMessage>& ScriptedDesktop::Messages() const {
  return body_->Script().Messages();
}

void ScriptedDesktop::RethrowFailure() const { body_->Script().Failure().Rethrow(); }

}  // namespace host
