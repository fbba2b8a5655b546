#pragma once

#include <CLI/CLI.hpp>

#include "cli/command_line.h"

// `orvane map`: marker name mappings.

namespace cli {

// Adds the verb to `app`; parsing it sets `work`, which must outlive the parsing.
void AddMapCommand(CLI::App& app, Work& work);

}  // namespace cli
