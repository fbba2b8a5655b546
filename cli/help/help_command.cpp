#include "cli/help/help_command.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <iostream>
#include <memory>

#include "cli/help/definitions.h"
#include "cli/help/mistakes.h"

namespace cli {
namespace {

// The verb of these names, each one of the one before.
const CLI::App& FindVerb(const CLI::App& app, const std::vector<std::string>& names) {
  const CLI::App* verb = &app;
  for (const std::string& name : names) {
    const auto verbs = VerbsOf(*verb);
    const auto next = std::find_if(verbs.begin(), verbs.end(), [&name](const CLI::App* each) {
      return each->get_name() == name;
    });
    if (next == verbs.end()) throw UnknownVerb(*verb, name);
    verb = *next;
  }
  return *verb;
}

}  // namespace

void AddHelpCommand(CLI::App& app, Work& work) {
  auto names = std::make_shared<std::vector<std::string>>();
  CLI::App* verb = app.add_subcommand("help", "Show the help of a verb");
  verb->add_option("VERB", *names, "The verb; without one, the program's own help is shown")
      ->type_name("");
  verb->callback([&app, &work, names] { work = Show(HelpOf(FindVerb(app, *names))); });
}

std::string HelpOf(const CLI::App& app) {
  return app.get_formatter()->make_help(&app, "", CLI::AppFormatMode::Normal);
}

Work Show(std::string text) {
  return [text = std::move(text)] {
    std::cout << text;
    return ExitStatus::kDone;
  };
}

}  // namespace cli
