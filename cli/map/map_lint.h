#pragma once

#include "cli/common/failure.h"

// `orvane map lint`: names what is odd in a mapping file, and what it makes of a capture. It reads
// the files alone and needs no host.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `map`. When the arguments ask for it, `work` is what they ask for.
void AddMapLint(CLI::App& map, Work& work);

}  // namespace cli
