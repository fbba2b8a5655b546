#pragma once

#include <deque>
#include <functional>
#include <string>
#include <utility>

#include "host/desktop/scripted_desktop.h"
#include "host/desktop/settings.h"

// A desktop for tests: fresh settings, and a user who closes every message box and answers dialogs
// as the test says.
namespace test {

class Desk {
 public:
  using DialogAnswer = std::function<void(host::ScriptedDialog&)>;

  // In use until it is destroyed.
  Desk() {
    host::ScriptedUser user;
    user.answer_dialog = [this](host::ScriptedDialog& dialog) { AnswerNext(dialog); };
    user.answer_message = [this](const host::UserMessage& message) {
      if (message.style != platform::MessageBoxStyle::kOk) {
        if (when_asked_) when_asked_();
        return choose_(message.text);
      }
      if (when_told_) when_told_();
      return platform::kMessageBoxOk;
    };
    user.choose_files = [this](const host::ShownFileDialog& dialog) {
      if (!choose_files_) throw host::ScriptError("Nobody expects " + dialog.title);
      return choose_files_(dialog);
    };
    user.choose_folder = [this](const std::string& title) {
      if (!choose_folder_) throw host::ScriptError("Nobody expects " + title);
      return choose_folder_(title);
    };
    user.act = [this] { return act_ && act_(); };
    desktop_.SetUser(std::move(user));
  }
  Desk(const Desk&) = delete;
  Desk& operator=(const Desk&) = delete;

  host::FreshSettings& settings() { return settings_; }
  host::ScriptedDesktop& desktop() { return desktop_; }

  // Answers the dialogs to come, one after the other.
  void Expect(DialogAnswer answer) { answers_.push_back(std::move(answer)); }
  void ExpectNoMore() { answers_.clear(); }
  bool AllAnswered() const { return answers_.empty(); }

  // The button for questions, or for each one.
  void Choose(platform::MessageBoxResult choice) {
    choose_ = [choice](const std::string&) { return choice; };
  }
  void Choose(std::function<platform::MessageBoxResult(const std::string&)> choose) {
    choose_ = std::move(choose);
  }

  // What happens while a message that asks nothing is shown.
  void WhenTold(std::function<void()> happen) { when_told_ = std::move(happen); }

  // What happens while a question is shown.
  void WhenAsked(std::function<void()> happen) { when_asked_ = std::move(happen); }

  // What the user does in the dialogs for files and folders from now on.
  void ChooseFiles(std::function<host::FileChoice(const host::ShownFileDialog&)> choose) {
    choose_files_ = std::move(choose);
  }
  void ChooseFolder(std::function<std::string(const std::string&)> choose) {
    choose_folder_ = std::move(choose);
  }

  // What he does whenever the plug-in waits for him; false when there is nothing left to do.
  void Act(std::function<bool()> act) { act_ = std::move(act); }

  // All messages so far, as "title: text", one a line.
  std::string Messages() const {
    std::string lines;
    for (const host::UserMessage& message : desktop_.Messages()) {
      lines += message.caption + ": " + message.text + "\n";
    }
    return lines;
  }

 private:
  void AnswerNext(host::ScriptedDialog& dialog) {
    if (answers_.empty()) throw host::ScriptError("Nobody expects \"" + dialog.Title() + "\"");
    const DialogAnswer answer = std::move(answers_.front());
    answers_.pop_front();
    answer(dialog);
  }

  host::FreshSettings settings_;
  host::ScriptedDesktop desktop_;
  std::deque<DialogAnswer> answers_;
  std::function<platform::MessageBoxResult(const std::string&)> choose_ = [](const std::string&) {
    return platform::kMessageBoxYes;
  };
  std::function<void()> when_told_;
  std::function<void()> when_asked_;
  std::function<host::FileChoice(const host::ShownFileDialog&)> choose_files_;
  std::function<std::string(const std::string&)> choose_folder_;
  std::function<bool()> act_;
};

}  // namespace test
