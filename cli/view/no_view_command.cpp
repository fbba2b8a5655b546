#include "cli/view/view_command.h"

namespace cli {

void AddViewCommand(CLI::App& /*app*/, Work& /*work*/) {}

}  // namespace cli
