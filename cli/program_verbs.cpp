#include "cli/check/check_command.h"
#include "cli/compare/compare_command.h"
#include "cli/convert/convert_command.h"
#include "cli/export/export_command.h"
#include "cli/help/help_command.h"
#include "cli/import/import_command.h"
#include "cli/info/info_command.h"
#include "cli/map/map_command.h"
#include "cli/rewrite/rewrite_command.h"
#include "cli/scene/scene_command.h"
#include "cli/verbs.h"
#include "cli/view/view_command.h"

namespace cli {

void AddVerbs(CLI::App& app, Work& work) {
  AddImportCommand(app, work);
  AddExportCommand(app, work);
  AddInfoCommand(app, work);
  AddConvertCommand(app, work);
  AddRewriteCommand(app, work);
  AddCheckCommand(app, work);
  AddCompareCommand(app, work);
  AddMapCommand(app, work);
  AddSceneCommand(app, work);
  AddViewCommand(app, work);
  AddHelpCommand(app, work);
}

}  // namespace cli
