#include "cli/check/check_command.h"
#include "cli/convert/convert_command.h"
#include "cli/export/export_command.h"
#include "cli/import/import_command.h"
#include "cli/map/map_command.h"
#include "cli/rewrite/rewrite_command.h"
#include "cli/verbs.h"

namespace cli {

void AddVerbs(CLI::App& app, Work& work) {
  AddImportCommand(app, work);
  AddExportCommand(app, work);
  AddConvertCommand(app, work);
  AddRewriteCommand(app, work);
  AddCheckCommand(app, work);
  AddMapCommand(app, work);
}

}  // namespace cli
