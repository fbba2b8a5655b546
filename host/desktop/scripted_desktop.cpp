#include "host/desktop/scripted_desktop.h"

#include <exception>
#include <optional>
#include <utility>

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

ScriptedDesktop::ScriptedDesktop(platform::Registry& registry) : registry_(registry) {}

ScriptedDesktop::~ScriptedDesktop() = default;

void ScriptedDesktop::SetUser(ScriptedUser user) { user_ = std::move(user); }

void ScriptedDesktop::RefuseDialog(int dialog_id) { refused_dialogs_.insert(dialog_id); }

void ScriptedDesktop::RethrowFailure() const { failure_.Rethrow(); }

platform::Registry& ScriptedDesktop::CurrentUser() { return registry_; }

template <typename Answer, typename Ask>
Answer ScriptedDesktop::AnswerOr(Answer none, const Ask& ask) {
  if (failure_.HasHappened()) return none;
  try {
    return ask();
  } catch (...) {
    failure_.Keep(std::current_exception());
    return none;
  }
}

int ScriptedDesktop::ShowMessage(const char* text, const char* caption, MessageBoxStyle style) {
  MessageBox message{text, caption, style, platform::kMessageBoxFailed};
  message.answer = AnswerOr<int>(platform::kMessageBoxFailed, [&] { return AnswerOf(message); });
  messages_.push_back(message);
  return message.answer;
}

int ScriptedDesktop::AnswerOf(const MessageBox& message) {
  if (!user_.answer_message) throw ScriptError("Nobody answers " + Described(message) + ".");
  const int answer = user_.answer_message(message);
  if (!HasButton(message.style, answer)) {
    throw ScriptError("There is no button " + std::to_string(answer) + " on " + Described(message) +
                      ".");
  }
  return answer;
}

bool ScriptedDesktop::ChooseFiles(const platform::FileDialog& dialog, char* buffer,
                                  std::size_t size, std::size_t& name_offset) {
  return AnswerOr(false, [&] {
    if (!user_.choose_files) throw ScriptError("Nobody answers " + Named(dialog.title) + ".");
    const ChosenFiles chosen = ResolveChoice(dialog, user_.choose_files(dialog));
    return !chosen.names.empty() && chosen.Write(buffer, size, name_offset);
  });
}

bool ScriptedDesktop::ChooseFolder(HWND /*owner*/, const char* title, char* buffer,
                                   std::size_t size) {
  return AnswerOr(false, [&] {
    if (!user_.choose_folder) throw ScriptError("Nobody answers " + Named(title) + ".");
    const std::string folder = user_.choose_folder(title);
    return !folder.empty() && WriteFolder(title, folder, buffer, size);
  });
}

std::optional<platform::DialogTemplate> ScriptedDesktop::TemplateOf(HINSTANCE module,
                                                                    int dialog_id) const {
  if (failure_.HasHappened() || refused_dialogs_.count(dialog_id) > 0) return {};
  return platform::FindDialog(platform::ResourceFileOf(module),
                              static_cast<unsigned int>(dialog_id));
}

platform::Dialog* ScriptedDesktop::CreateModeless(HINSTANCE module, int dialog_id, HWND parent,
                                                  platform::DialogHandler& handler) {
  const std::optional<platform::DialogTemplate> dialog_template = TemplateOf(module, dialog_id);
  if (!dialog_template) return nullptr;
  return &modeless_.Create(dialog_id, *dialog_template, parent, handler);
}

ScriptedDialog* ScriptedDesktop::ShownDialog(int dialog_id) {
  return modeless_.FindShown(dialog_id);
}

void ScriptedDesktop::ShowModeless(platform::Dialog& dialog) { modeless_.Show(dialog); }

void ScriptedDesktop::DestroyModeless(platform::Dialog& dialog) { modeless_.Destroy(dialog); }

platform::Dialog* ScriptedDesktop::FindModeless(HWND window) {
  return modeless_.FindByWindow(window);
}

bool ScriptedDesktop::ProcessPendingMessages(bool awaited) {
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

int ScriptedDesktop::RunDialog(HINSTANCE module, int dialog_id, HWND parent,
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

void ScriptedDesktop::LetUserAnswer(int dialog_id, OpenDialog& dialog,
                                    platform::DialogHandler& handler) {
  failure_.Rethrow();
  if (dialog.HasEnded()) return;
  const std::string name = Named(dialog.Title());
  if (!user_.answer_dialog) throw ScriptError("Nobody answers " + name + ".");
  ScriptedDialog user_side(dialog_id, dialog, handler, failure_);
  user_.answer_dialog(user_side);
  if (!dialog.HasEnded()) throw ScriptError("The script left " + name + " open.");
}

}  // namespace host
