#include "cli/parser.h"

#include <CLI/CLI.hpp>

#include "cli/help/help_page.h"
#include "cli/verbs.h"

namespace cli {

std::unique_ptr<CLI::App> MakeParser(Work& work) {
  auto app = std::make_unique<CLI::App>(
      "Brings motion-capture files into scenes that any glTF viewer plays, and skeletons out.",
      "orvane");
  // A verb takes these from the program when it is added.
  app->formatter(MakeHelpPages());
  app->set_help_flag("-h,--help", "Show this help");
  app->allow_windows_style_options(false);  // "/takes/walk.htr" is a file on every system
  app->set_version_flag("--version", "orvane " ORVANE_VERSION, "Show the version");
  app->require_subcommand(1);
  AddVerbs(*app, work);
  return app;
}

}  // namespace cli
