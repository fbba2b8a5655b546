#pragma once

#include <string>

// What only the program's own page of the manual tells.

namespace cli {

// The exit status, the files and the variables of the environment, for all verbs, in the language
// of manual pages.
[[nodiscard]] std::string ProgramSections();

}  // namespace cli
