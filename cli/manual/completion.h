#pragma once

#include <string>

// What completes command lines.

namespace CLI {
class App;
}  // namespace CLI

namespace cli {

// A script for bash that completes command lines of the program `app`: its verbs, their flags, what
// those take, and files of the kinds that are taken.
[[nodiscard]] std::string BashCompletion(const CLI::App& app);

}  // namespace cli
