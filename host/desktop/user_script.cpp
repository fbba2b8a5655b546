#include "host/desktop/user_script.h"

#include <exception>
#include <utility>

namespace host {
namespace {

using platform::MessageBoxStyle;

bool HasButton(MessageBoxStyle style, int answer) {
  return style == MessageBoxStyle::kYesNo
             ? answer == platform::kMessageBoxYes || answer == platform::kMessageBoxNo
             : answer == platform::kMessageBoxOk;
}

std::string Named(const std::string& dialog_title) { return "the dialog \"" + dialog_title + "\""; }

std::string Described(const UserMessage& message) {
  return "the message \"" + message.text + "\" (\"" + message.caption + "\")";
}

}  // namespace

template <typename Answer, typename Ask>
Answer UserScript::AnswerOr(Answer none, const Ask& ask) {
  if (failure_.HasHappened()) return none;
  try {
    Answer answer = ask();
    failure_.Rethrow();  // of what happened meanwhile
    return answer;
  } catch (...) {
    failure_.Keep(std::current_exception());
    return none;
  }
}

int UserScript::AnswerMessage(std::string text, std::string caption, MessageBoxStyle style) {
  UserMessage message{std::move(text), std::move(caption), style, platform::kMessageBoxFailed};
  message.answer = AnswerOr<int>(platform::kMessageBoxFailed, [&] { return AnswerOf(message); });
  messages_.push_back(message);
  return message.answer;
}

int UserScript::AnswerOf(const UserMessage& message) const {
  if (!user_.answer_message) throw ScriptError("Nobody answers " + Described(message) + ".");
  const int answer = user_.answer_message(message);
  if (!HasButton(message.style, answer)) {
    throw ScriptError("There is no button " + std::to_string(answer) + " on " + Described(message) +
                      ".");
  }
  return answer;
}

bool UserScript::UseDialog(ScriptedDialog& dialog) {
  return AnswerOr(false, [&] {
    const std::string name = Named(dialog.Title());
    if (!user_.answer_dialog) throw ScriptError("Nobody answers " + name + ".");
    user_.answer_dialog(dialog);
    if (!dialog.HasEnded()) throw ScriptError("The script left " + name + " open.");
    return true;
  });
}

bool UserScript::ChooseFiles(const ShownFileDialog& dialog,
                             const std::function<bool(const FileChoice&)>& take) {
  return AnswerOr(false, [&] {
    if (!user_.choose_files) throw ScriptError("Nobody answers " + Named(dialog.title) + ".");
    const FileChoice choice = user_.choose_files(dialog);
    return !choice.paths.empty() && take(choice);
  });
}

bool UserScript::ChooseFolder(const std::string& title,
                              const std::function<bool(const std::string&)>& take) {
  return AnswerOr(false, [&] {
    if (!user_.choose_folder) throw ScriptError("Nobody answers " + Named(title) + ".");
    const std::string folder = user_.choose_folder(title);
    return !folder.empty() && take(folder);
  });
}

bool UserScript::Act() {
  return AnswerOr(false, [&] {
    const std::function<bool()> act = user_.act;  // which may change who the user is
    if (!act || !act()) {
      throw ScriptError("The plug-in waits, and its user has nothing left to do.");
    }
    return true;
  });
}

}  // namespace host
