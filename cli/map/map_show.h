#pragma once

#include "cli/common/failure.h"

// `orvane map show`: a mapping as a table of the standard markers, and how much of each is in a
// capture. It reads the files alone and needs no host.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `map`. When the arguments ask for it, `work` is what they ask for.
void AddMapShow(CLI::App& map, Work& work);

}  // namespace cli
