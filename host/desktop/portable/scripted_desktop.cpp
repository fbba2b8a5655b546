#include "host/desktop/scripted_desktop.h"

#include <cstddef>
#include <exception>
#include <optional>
#include <set>
#include <string>
#include <utility>

#include "host/desktop/portable/chosen_files.h"
#include "host/desktop/portable/modeless_dialogs.h"
#include "host/desktop/portable/open_dialog_user.h"
#include "platform/desktop.h"
#include "platform/portable/module_resources.h"
#include "platform/portable/resource_file.h"

namespace host {
namespace {

using platform::MessageBoxStyle;

bool HasButton(MessageBoxStyle style, int answer) {
  return style == MessageBoxStyle::kYesNo
             ? answer == platform::kMessageBoxYes || answer == platform::kMessageBoxNo
             : answer == platform::kMessageBoxOk;
}

std::string Named(const std::string& dialog_title) { return "the dialog \"" + dialog_title + "\""; }

std::string Described(const MessageBox& message) {
  return "the message \"" + message.text + "\" (\"" + message.caption + "\")";
}

}  // namespace

// What the platform's functions come to.
class ScriptedDesktop::Body final : public platform::Desktop {
 public:
  Body() { platform::InstallDesktop(this); }
  Body(const Body&) = delete;
  Body& operator=(const Body&) = delete;
  ~Body() { platform::InstallDesktop(previous_); }

  void SetUser(ScriptedUser user) { user_ = std::move(user); }
  void RefuseDialog(int dialog_id) { refused_dialogs_.insert(dialog_id); }
  ScriptedDialog* ShownDialog(int dialog_id) { return modeless_.FindShown(dialog_id); }
  [[nodiscard]] const std::vector<MessageBox>& Messages() const { return messages_; }
  void RethrowFailure() const { failure_.Rethrow(); }

  int ShowMessage(const char* text, const char* caption, MessageBoxStyle style) override;
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
  // The answer that `ask` gives, or `none` once there was a failure, which may be its own.
  template <typename Answer, typename Ask>
  Answer AnswerOr(Answer none, const Ask& ask);

  // What the resources of `module` say of dialog `dialog_id`; nothing when it is not to be created.
  [[nodiscard]] std::optional<platform::DialogTemplate> TemplateOf(HINSTANCE module,
                                                                   int dialog_id) const;

  int AnswerOf(const MessageBox& message);
  void LetUserAnswer(int dialog_id, OpenDialog& dialog, platform::DialogHandler& handler);

  platform::Desktop* previous_ = platform::CurrentDesktop();
  ScriptedUser user_;
  std::set<int> refused_dialogs_;
  std::vector<MessageBox> messages_;
  ScriptFailure failure_;
  ModelessDialogs modeless_{failure_};
};

template <typename Answer, typename Ask>
Answer ScriptedDesktop::Body::AnswerOr(Answer none, const Ask& ask) {
  if (failure_.HasHappened()) return none;
  try {
    return ask();
  } catch (...) {
    failure_.Keep(std::current_exception());
    return none;
  }
}

int ScriptedDesktop::Body::ShowMessage(const char* text, const char* caption,
                                       MessageBoxStyle style) {
  MessageBox message{text, caption, style, platform::kMessageBoxFailed};
  message.answer = AnswerOr<int>(platform::kMessageBoxFailed, [&] { return AnswerOf(message); });
  messages_.push_back(message);
  return message.answer;
}

int ScriptedDesktop::Body::AnswerOf(const MessageBox& message) {
  if (!user_.answer_message) throw ScriptError("Nobody answers " + Described(message) + ".");
  const int answer = user_.answer_message(message);
  if (!HasButton(message.style, answer)) {
    throw ScriptError("There is no button " + std::to_string(answer) + " on " + Described(message) +
                      ".");
  }
  return answer;
}

bool ScriptedDesktop::Body::ChooseFiles(const platform::FileDialog& dialog, char* buffer,
                                        std::size_t size, std::size_t& name_offset) {
  return AnswerOr(false, [&] {
    if (!user_.choose_files) throw ScriptError("Nobody answers " + Named(dialog.title) + ".");
    const ChosenFiles chosen =
        ResolveChoice(dialog, user_.choose_files({dialog.title, dialog.filter_name}));
    return !chosen.names.empty() && chosen.Write(buffer, size, name_offset);
  });
}

bool ScriptedDesktop::Body::ChooseFolder(HWND /*owner*/, const char* title, char* buffer,
                                         std::size_t size) {
  return AnswerOr(false, [&] {
    if (!user_.choose_folder) throw ScriptError("Nobody answers " + Named(title) + ".");
    const std::string folder = user_.choose_folder(title);
    return !folder.empty() && WriteFolder(title, folder, buffer, size);
  });
}

std::optional<platform::DialogTemplate> ScriptedDesktop::Body::TemplateOf(HINSTANCE module,
                                                                          int dialog_id) const {
  if (failure_.HasHappened() || refused_dialogs_.count(dialog_id) > 0) return {};
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
  return AnswerOr(false, [&] {
    if (!awaited && !modeless_.AnyWaiting()) return true;
    const std::function<bool()> act = user_.act;  // which may change who the user is
    if (!act || !act()) {
      throw ScriptError("The plug-in waits, and its user has nothing left to do.");
    }
    failure_.Rethrow();
    return true;
  });
}

int ScriptedDesktop::Body::RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                                     platform::DialogHandler& handler) {
  const std::optional<platform::DialogTemplate> dialog_template = TemplateOf(module, dialog_id);
  if (!dialog_template) return platform::kDialogNotCreated;

  OpenDialog dialog(*dialog_template, parent, true);
  handler.Initialize(dialog);
  try {
    LetUserAnswer(dialog_id, dialog, handler);
  } catch (...) {
    failure_.Keep(std::current_exception());
  }
  return failure_.HasHappened() ? platform::kDialogNotCreated : dialog.Result();
}

void ScriptedDesktop::Body::LetUserAnswer(int dialog_id, OpenDialog& dialog,
                                          platform::DialogHandler& handler) {
  failure_.Rethrow();
  if (dialog.HasEnded()) return;
  const std::string name = Named(dialog.Title());
  if (!user_.answer_dialog) throw ScriptError("Nobody answers " + name + ".");
  OpenDialogUser user_side(dialog_id, dialog, handler, failure_);
  user_.answer_dialog(user_side);
  if (!dialog.HasEnded()) throw ScriptError("The script left " + name + " open.");
}

ScriptedDesktop::ScriptedDesktop() : body_(std::make_unique<Body>()) {}

ScriptedDesktop::~ScriptedDesktop() = default;

void ScriptedDesktop::SetUser(ScriptedUser user) { body_->SetUser(std::move(user)); }

void ScriptedDesktop::RefuseDialog(int dialog_id) { body_->RefuseDialog(dialog_id); }

ScriptedDialog* ScriptedDesktop::ShownDialog(int dialog_id) {
  return body_->ShownDialog(dialog_id);
}

const std::vector<MessageBox>& ScriptedDesktop::Messages() const { return body_->Messages(); }

void ScriptedDesktop::RethrowFailure() const { body_->RethrowFailure(); }

}  // namespace host
