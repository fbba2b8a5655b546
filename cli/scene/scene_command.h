#pragma once

#include "cli/common/failure.h"

// `orvane scene`: tells what a scene file holds.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `app`. When the arguments ask for it, `work` is what they ask for.
void AddSceneCommand(CLI::App& app, Work& work);

}  // namespace cli
