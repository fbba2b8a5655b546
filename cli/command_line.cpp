#include "cli/command_line.h"

#include <CLI/CLI.hpp>
#include <iostream>

#include "cli/help/greeting.h"
#include "cli/help/help_command.h"
#include "cli/help/mistakes.h"
#include "cli/parser.h"

namespace cli {

Work ReadCommandLine(int argument_count, const char* const* arguments) {
  if (argument_count < 2) return Greet;
  Work work;
  const std::unique_ptr<CLI::App> app = MakeParser(work);
  try {
    app->parse(argument_count, arguments);
  } catch (const CLI::CallForHelp&) {
    RequireKnownVerbs(*app);
    return Show(HelpOf(VerbNamedLast(*app)));
  } catch (const CLI::CallForVersion& version) {
    return Show(std::string(version.what()) + "\n");
  } catch (const CLI::ParseError& error) {
    throw WrongUsage(*app, error);
  }
  return work;
}

}  // namespace cli
