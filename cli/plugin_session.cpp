#include "cli/plugin_session.h"

#include <filesystem>
#include <optional>

#include "cli/import_flags.h"
#include "cli/progress_line.h"
#include "platform/desktop.h"
#include "platform/interrupt.h"
#include "platform/program.h"

namespace cli {
namespace {

std::string SettingsPath() {
  std::string path = host::UserSettingsPath();
  if (path.empty()) {
    throw Failure{ExitStatus::kInputOutput,
                  {{"--settings user", "this user has no folder for settings", ""}}};
  }
  return path;
}

// The plug-in would go on with its defaults, and the user would not know.
void RequireOpen(const host::SqliteRegistry& registry, const std::string& path) {
  if (registry.IsOpen()) return;
  throw Failure{ExitStatus::kInputOutput,
                {{path, "the settings cannot be read, or are in use",
                  "--settings fresh does without them."}}};
}

host::KeyedRegistry& Any(std::variant<host::MemoryRegistry, host::SqliteRegistry>& registry) {
  return std::visit([](auto& one) -> host::KeyedRegistry& { return one; }, registry);
}

int PressOk(const host::MessageBox&) { return platform::kMessageBoxOk; }

}  // namespace

PluginSession::PluginSession(const std::string& module_path, Settings settings) {
  if (settings == Settings::kUser) {
    const std::string path = SettingsPath();
    RequireOpen(registry_.emplace<host::SqliteRegistry>(path), path);
  }
  desktop_ = std::make_unique<host::ScriptedDesktop>(Any(registry_));
  platform::InstallDesktop(desktop_.get());
  application_ = std::make_unique<host::Application>();
  std::string refusal;
  module_ = host::Module::Load(module_path, {*application_, &Any(registry_)}, refusal);
  if (module_ == nullptr) throw Failure{ExitStatus::kInputOutput, {{"", refusal, ""}}};
}

PluginSession::~PluginSession() {
  module_.reset();
  application_.reset();
  platform::InstallDesktop(nullptr);
}

bool PluginSession::Import(const std::string& file, const std::string& extension,
                           const std::vector<ControlWish>& wishes, bool show_progress) {
  desktop_->SetUser(
      {[&wishes](host::ScriptedDialog& dialog) { UseDialog(dialog, wishes, kImportButtons); },
       PressOk});
  ProgressLine line("Importing " + std::filesystem::path(file).filename().string(), show_progress);
  application_->progress().SetObserver([this, &line](const host::ProgressEvent& event) {
    line.Show(event.percent);
    if (platform::Interrupted()) application_->cancellation().Request();
  });
  const std::optional<host::ImportResult> result =
      extension.empty() ? module_->Import(file, false) : module_->Import(file, extension, false);
  application_->progress().SetObserver({});
  desktop_->RethrowFailure();
  if (!result) {
    throw Failure{ExitStatus::kWrongUsage,
                  {{file, "the plug-in has no importer for files of this kind",
                    "--as htr or --as trc tells what it is."}}};
  }
  return result->returned == 1 && result->completed;
}

std::vector<std::string> PluginSession::Messages() const {
  std::vector<std::string> texts;
  for (const host::MessageBox& message : desktop_->Messages()) texts.push_back(message.text);
  return texts;
}

std::string DefaultModulePath() { return platform::ProgramFolder() + "/" ORVANE_MODULE_NAME; }

}  // namespace cli
