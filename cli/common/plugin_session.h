#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "cli/common/dialog_user.h"
#include "cli/common/failure.h"
#include "host/application/application.h"
#include "host/application/module.h"
#include "host/desktop/scripted_desktop.h"
#include "host/desktop/settings.h"
#include "host/desktop/stopped_clock.h"

// A host with the plug-in loaded, used by somebody who knows only the command line.

namespace cli {

// Whose settings the plug-in finds: its documented defaults, or what the user chose last.
enum class SettingsSource { kFresh, kUser };

class PluginSession {
 public:
  // Starts the host with a new scene and loads the module in the file `module_path`, which finds
  // the clock at the moment of the environment variable SOURCE_DATE_EPOCH when that is a number of
  // seconds. Throws a Failure when that cannot be done.
  // REQUIRES: there is no other session.
  PluginSession(const std::string& module_path, SettingsSource settings);
  ~PluginSession();
  PluginSession(const PluginSession&) = delete;
  PluginSession& operator=(const PluginSession&) = delete;

  host::Scene& scene() { return application_->scene(); }
  host::Application& application() { return *application_; }
  host::ScriptedDesktop& desktop() { return *desktop_; }
  const host::Module& module() const { return *module_; }
  const host::Settings& settings() const;

  // Lets the importer for `extension` (without its dot; empty: that of the name) import `file`,
  // answering its dialog by `wishes`; every message is closed by
  // its OK button. A progress line is printed when `show_progress` is set. When the user interrupts
  // the program, the import is cancelled. Returns whether the import was carried out to its end.
  // Throws a Failure when a wish cannot be fulfilled, or when the plug-in has no importer for such
  // files.
  [[nodiscard]] bool Import(const std::string& file, const std::string& extension,
                            const std::vector<ControlWish>& wishes, bool show_progress);

  // Lets the plug-in export to `file`, in the same way. An export cannot be cancelled.
  [[nodiscard]] bool ExportHtr(const std::string& file, const std::vector<ControlWish>& wishes,
                               bool show_progress);

  // What the plug-in told its user, in its own words.
  [[nodiscard]] std::vector<std::string> Messages() const;

 private:
  using Entry = std::function<std::optional<host::FileResult>()>;

  struct Task {
    const char* title;  // "Importing"
    const char* role;   // of the plug-in: "importer"
    std::string file;
    const char* advice;  // when the plug-in has nobody for it
  };

  // Calls `entry`, which lets the plug-in do it.
  [[nodiscard]] bool Run(const Task& task, const std::vector<ControlWish>& wishes,
                         bool show_progress, const Entry& entry);

  // One of the settings. What stands below is destroyed before.
  std::optional<host::FreshSettings> fresh_settings_;
  std::unique_ptr<host::UserSettings> user_settings_;
  std::optional<host::StoppedClock> clock_;
  std::optional<host::ScriptedDesktop> desktop_;
  std::unique_ptr<host::Application> application_;
  std::unique_ptr<host::Module> module_;
};

// The file of the module: it lies beside the program.
[[nodiscard]] std::string DefaultModulePath();

}  // namespace cli
