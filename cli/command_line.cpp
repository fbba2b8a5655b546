#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <string>

#include "cli/check/check_command.h"
#include "cli/common/failure.h"
#include "cli/compare/compare_command.h"
#include "cli/convert/convert_command.h"
#include "cli/export/export_command.h"
#include "cli/import/import_command.h"
#include "cli/info/info_command.h"
#include "cli/map/map_command.h"
#include "cli/scene/scene_command.h"

namespace cli {
namespace {

Work Show(std::string text) {
  return [text = std::move(text)] {
    std::cout << text;
    return ExitStatus::kDone;
  };
}

// "orvane", "orvane import" or "orvane map lint": whose help tells what went wrong.
std::string HelpCommand(const CLI::App& app) {
  std::string command = "orvane";
  const CLI::App* verb = &app;
  while (!verb->get_subcommands().empty()) {
    verb = verb->get_subcommands().front();
    command += " " + verb->get_name();
  }
  return command + " --help";
}

// CLI11 counts values; a user knows flags.
std::string ExplainMismatch(const std::string& text) {
  const std::string flag = text.substr(0, text.find(':'));
  const bool too_many = text.find("At Most") != std::string::npos;
  return flag + (too_many ? " is given more than once" : " needs a value");
}

// CLI11 only says that a verb is missing when there is one that it does not know.
std::string Explain(const CLI::App& app, const CLI::ParseError& error, int argument_count,
                    const char* const* arguments) {
  if (error.get_name() == "ArgumentMismatch") return ExplainMismatch(error.what());
  if (!app.get_subcommands().empty()) {
    const std::string text = error.what();
    return text == "A subcommand is required" ? "a verb is missing behind this one" : text;
  }
  if (argument_count < 2) return "what is to be done? A verb is missing";
  return "there is no verb or flag \"" + std::string(arguments[1]) + "\"";
}

// As the documentation calls them.
void NameVerbs(CLI::App& app) {
  for (CLI::App* const verb : app.get_subcommands({})) {
    verb->group("Verbs");
    NameVerbs(*verb);
  }
}

}  // namespace

Work ReadCommandLine(int argument_count, const char* const* arguments) {
  Work work;
  CLI::App app(
      "Brings motion-capture files into scenes that any glTF viewer plays, and skeletons out.",
      "orvane");
  app.get_formatter()->label("SUBCOMMAND", "VERB");
  app.set_version_flag("--version", "orvane " ORVANE_VERSION);
  app.require_subcommand(1);
  app.allow_windows_style_options(false);  // "/takes/walk.htr" is a file on every system
  AddImportCommand(app, work);
  AddExportCommand(app, work);
  AddInfoCommand(app, work);
  AddConvertCommand(app, work);
  AddCheckCommand(app, work);
  AddCompareCommand(app, work);
  AddMapCommand(app, work);
  AddSceneCommand(app, work);
  NameVerbs(app);
  try {
    app.parse(argument_count, arguments);
  } catch (const CLI::CallForHelp&) {
    return Show(app.help());
  } catch (const CLI::CallForVersion& version) {
    return Show(std::string(version.what()) + "\n");
  } catch (const CLI::ParseError& error) {
    throw Failure{ExitStatus::kWrongUsage,
                  {{"", Explain(app, error, argument_count, arguments),
                    "\"" + HelpCommand(app) + "\" lists what there is."}}};
  }
  return work;
}

}  // namespace cli
