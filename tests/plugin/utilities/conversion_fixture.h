#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <regex>
#include <string>
#include <vector>

#include "host/application/application.h"
#include "host/desktop/scripted_desktop.h"
#include "host/desktop/settings.h"
#include "platform/module.h"
#include "plugin/utilities/convert_bvk.h"
#include "tests/support/files.h"
#include "tests/support/forwarding_interface.h"
#include "tests/support/temporary_folder.h"

namespace test {

// Lets a test do something whenever the host handles its pending messages.
class InterruptedInterface final : public ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;

  void ProcessPendingMessages() override {
    if (on_pending_messages) on_pending_messages();
    ForwardingInterface::ProcessPendingMessages();
  }

  std::function<void()> on_pending_messages;
};

// A converter with a folder of takes, a mapping file of one entry (Head1 plays HEAD), a folder for
// outputs, a clock that stands still, and a user who chooses files as the test says.
class ConversionTest : public testing::Test {
 protected:
  ConversionTest() {
    host::ScriptedUser user;
    user.answer_message = [](const host::UserMessage&) { return platform::kMessageBoxOk; };
    user.choose_files = [this](const host::ShownFileDialog& dialog) { return Choose(dialog); };
    desktop_.SetUser(std::move(user));
    std::filesystem::create_directory(folder_.Path() / "out");
    converter_.emplace(messages_, strings_, platform::ModuleHandle());
    converter_->mnmPath = folder_.Write("map.mnm", "HEAD\tHead1\t\n");
    converter_->outputPath = folder_.File("out");
    converter_->inputPath = folder_.Path().string();
  }
  ~ConversionTest() override {
    desktop_.RethrowFailure();
    EXPECT_TRUE(choices_.empty()) << "the user was not asked for every file";
    converter_.reset();
  }

  // The user's answer to the next file dialog; no paths: he cancels.
  void UserChooses(std::vector<std::string> paths) { choices_.push_back({std::move(paths), true}); }
  bool Convert() { return converter_->Convert(&host_); }
  // In a batch, which is set from now on.
  bool ConvertBatch(std::vector<std::string> paths) {
    converter_->batch = true;
    UserChooses(std::move(paths));
    return Convert();
  }

  // Makes the file `name` in the test's folder.
  std::string Write(const std::string& name, const std::string& bytes) const {
    return folder_.Write(name, bytes);
  }
  // With "TIME" in place of any moment.
  std::string Read(const std::string& name) const {
    const std::regex moment("[A-Z][a-z]{2} [A-Z][a-z]{2} [ 0-9][0-9] [0-9:]{8} [0-9]{4}");
    return std::regex_replace(ReadTextFile(folder_.File(name)), moment, "TIME");
  }
  std::string Log() const { return Read("out/ConvertBVKLog.txt"); }
  // The log behind its first three lines.
  std::string LoggedFiles() const {
    const std::string log = Log();
    const std::string header_end = " files...\n";
    return log.substr(log.find(header_end) + header_end.size());
  }
  std::vector<std::string> Messages() const {
    std::vector<std::string> lines;
    for (const host::UserMessage& message : desktop_.Messages()) {
      lines.push_back(message.caption + ": " + message.text);
    }
    return lines;
  }

  TemporaryFolder folder_;
  host::FreshSettings settings_;
  host::ScriptedDesktop desktop_;
  host::Application application_;
  InterruptedInterface host_{application_.plugin_interface()};
  orvane::MessageSink messages_;
  orvane::StringTable strings_;
  std::optional<orvane::ConvertBVK> converter_;
  std::vector<host::ShownFileDialog> dialogs_;

 private:
  host::FileChoice Choose(const host::ShownFileDialog& dialog) {
    dialogs_.push_back(dialog);
    if (choices_.empty()) throw host::ScriptError("Nobody expects a file dialog");
    host::FileChoice choice = choices_.front();
    choices_.pop_front();
    return choice;
  }

  std::deque<host::FileChoice> choices_;
};

}  // namespace test
