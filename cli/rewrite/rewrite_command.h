#pragma once

#include "cli/common/failure.h"

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb `rewrite`, which makes motion and marker files of others. When it is parsed, it
// sets `work`.
void AddRewriteCommand(CLI::App& app, Work& work);

}  // namespace cli
