#include "cli/common/plugin_session.h"

#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>

#include "cli/common/progress_line.h"
#include "cli/common/progress_watch.h"
#include "platform/interrupt.h"
#include "platform/path_text.h"
#include "platform/program.h"

namespace cli {
namespace {

std::unique_ptr<host::UserSettings> OpenUserSettings() {
  const std::string place = host::UserSettings::Place();
  if (place.empty()) {
    throw Failure{ExitStatus::kInputOutput,
                  {{"--settings user", "this user has no folder for settings", ""}}};
  }
  auto settings = std::make_unique<host::UserSettings>();
  if (settings->IsOpen()) return settings;
  // The plug-in would go on with its defaults, and the user would not know.
  throw Failure{ExitStatus::kInputOutput,
                {{place, "the settings cannot be read, or are in use",
                  "--settings fresh does without them."}}};
}

// What SOURCE_DATE_EPOCH says, or nothing when it says no number of seconds.
std::optional<std::int64_t> EpochOfEnvironment() {
  const char* const variable = std::getenv("SOURCE_DATE_EPOCH");
  if (variable == nullptr) return {};
  const std::string_view text = variable;
  const char* const end = text.data() + text.size();
  std::int64_t seconds = 0;
  const auto [rest, error] = std::from_chars(text.data(), end, seconds);
  if (error != std::errc() || rest != end) return {};
  return seconds;
}

int PressOk(const host::UserMessage&) { return platform::kMessageBoxOk; }

}  // namespace

PluginSession::PluginSession(const std::string& module_path, SettingsSource settings) {
  platform::WorkUnseen();
  if (settings == SettingsSource::kUser) {
    user_settings_ = OpenUserSettings();
  } else {
    fresh_settings_.emplace();
  }
  if (const std::optional<std::int64_t> epoch = EpochOfEnvironment()) clock_.emplace(*epoch);
  desktop_.emplace();
  application_ = std::make_unique<host::Application>();
  std::string refusal;
  module_ = host::Module::Load(module_path, {*application_}, refusal);
  if (module_ == nullptr) throw Failure{ExitStatus::kInputOutput, {{"", refusal, ""}}};
}

PluginSession::~PluginSession() = default;

const host::Settings& PluginSession::settings() const {
  if (user_settings_) return *user_settings_;
  return *fresh_settings_;
}

bool PluginSession::Import(const std::string& file, const std::string& extension,
                           const std::vector<ControlWish>& wishes, bool show_progress) {
  const Task task{"Importing ", "importer", file, "--as htr or --as trc tells what it is."};
  return Run(task, wishes, show_progress, [&] {
    return extension.empty() ? module_->Import(file, false)
                             : module_->Import(file, extension, false);
  });
}

bool PluginSession::ExportHtr(const std::string& file, const std::vector<ControlWish>& wishes,
                              bool show_progress) {
  return Run({"Exporting ", "exporter", file, ""}, wishes, show_progress,
             [this, &file] { return module_->Export(file, false); });
}

bool PluginSession::Run(const Task& task, const std::vector<ControlWish>& wishes,
                        bool show_progress, const Entry& entry) {
  desktop_->SetUser(
      {[&wishes](host::ScriptedDialog& dialog) { UseDialog(dialog, wishes); }, PressOk});
  const std::string title = task.title + platform::TextOf(platform::PathOf(task.file).filename());
  ProgressLine line(title, show_progress);
  application_->progress().SetObserver([this, &line, &title](const host::ProgressEvent& event) {
    line.Show(event.percent);
    TellProgress({title, event.percent, event.kind == host::ProgressEvent::Kind::kEnd});
    if (platform::Interrupted()) application_->cancellation().Request();
  });
  const std::optional<host::FileResult> result = entry();
  application_->progress().SetObserver({});
  desktop_->RethrowFailure();
  if (!result) {
    const std::string text = std::string("the plug-in has no ") + task.role;
    throw Failure{ExitStatus::kWrongUsage,
                  {{task.file, text + " for files of this kind", task.advice}}};
  }
  return result->returned == 1 && result->completed;
}

std::vector<std::string> PluginSession::Messages() const {
  std::vector<std::string> texts;
  for (const host::UserMessage& message : desktop_->Messages()) texts.push_back(message.text);
  return texts;
}

std::string DefaultModulePath() { return platform::ProgramFolder() + "/" ORVANE_MODULE_NAME; }

}  // namespace cli
