#pragma once

#include "cli/common/failure.h"

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb "view" to `app`, which sets `work` when it is given. Within a page, which is no
// desktop to open another on, it adds nothing.
void AddViewCommand(CLI::App& app, Work& work);

}  // namespace cli
