#pragma once

#include <string>

#include "cli/common/failure.h"

// `orvane help`: the help of the program or of a verb.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// Adds the verb to `app`; parsing it sets `work`, which must outlive the parsing. Whoever parses is
// told by a Failure of a verb that there is not.
void AddHelpCommand(CLI::App& app, Work& work);

// The help of the program or of a verb.
[[nodiscard]] std::string HelpOf(const CLI::App& app);

// Work that writes `text` to standard output.
[[nodiscard]] Work Show(std::string text);

}  // namespace cli
