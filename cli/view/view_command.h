#pragma once

#include "cli/common/failure.h"

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb "view" to `app`, which sets `work` when it is given.
void AddViewCommand(CLI::App& app, Work& work);

}  // namespace cli
