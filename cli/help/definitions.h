#pragma once

#include <string>
#include <vector>

// What a parser knows of its verbs and their flags, in the order in which they were defined.

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace cli {

// A flag or a positional argument as its user sees it; of a flag and its opposite, "--x" and
// "--no-x", one for both.
struct Definition {
  const CLI::Option* option = nullptr;  // of two the first
  std::vector<std::string> names{};     // with their dashes, the short one first
  std::string value{};                  // what it takes, such as "FROM:TO"; empty for nothing
  std::string text{};  // what it does, whether it is required, and what it does not go with
};

[[nodiscard]] std::vector<Definition> FlagsOf(const CLI::App& verb);
[[nodiscard]] std::vector<Definition> PositionalsOf(const CLI::App& verb);

// The verbs of the program, or those of a verb that has some.
[[nodiscard]] std::vector<const CLI::App*> VerbsOf(const CLI::App& app);

// The names of `app`, of the verbs that it belongs to, and of the program: "orvane map create".
[[nodiscard]] std::string CommandOf(const CLI::App& app);

// Those without the program's: "map create"; empty for the program.
[[nodiscard]] std::string VerbOf(const CLI::App& app);

// How `app` is called: its flags, arguments and verbs, without its own name.
[[nodiscard]] std::string UsageOf(const CLI::App& app);

}  // namespace cli
