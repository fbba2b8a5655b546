#include "cli/choice.h"

namespace cli {

void AddChoice(CLI::App& verb, const std::string& flag, const std::vector<std::string>& choices,
               const std::string& help, const std::function<void(const std::string&)>& use) {
  // The choices stand in the help once, as the option's type.
  CLI::IsMember is_choice(choices);
  is_choice.description("");
  verb.add_option_function(flag, use, help)
      ->type_name(CLI::detail::join(choices, "|"))
      ->check(is_choice);
}

}  // namespace cli
