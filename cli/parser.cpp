#include "cli/parser.h"

#include <CLI/CLI.hpp>

#include "cli/check/check_command.h"
#include "cli/compare/compare_command.h"
#include "cli/convert/convert_command.h"
#include "cli/export/export_command.h"
#include "cli/help/help_command.h"
#include "cli/help/help_page.h"
#include "cli/import/import_command.h"
#include "cli/info/info_command.h"
#include "cli/map/map_command.h"
#include "cli/rewrite/rewrite_command.h"
#include "cli/scene/scene_command.h"
#include "cli/view/view_command.h"

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
  AddImportCommand(*app, work);
  AddExportCommand(*app, work);
  AddInfoCommand(*app, work);
  AddConvertCommand(*app, work);
  AddRewriteCommand(*app, work);
  AddCheckCommand(*app, work);
  AddCompareCommand(*app, work);
  AddMapCommand(*app, work);
  AddSceneCommand(*app, work);
  AddViewCommand(*app, work);
  AddHelpCommand(*app, work);
  return app;
}

}  // namespace cli
