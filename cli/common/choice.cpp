#include "cli/common/choice.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "inspect/check/similar_words.h"

namespace cli {
namespace {

CLI::Validator OneOf(const std::vector<std::string>& choices) {
  const auto complaint = [choices](const std::string& word) {
    const bool is_choice = std::find(choices.begin(), choices.end(), word) != choices.end();
    if (is_choice) return std::string();
    return word + " is not one of " + CLI::detail::join(choices, ", ") + DidYouMean(word, choices);
  };
  return {complaint, ""};
}

}  // namespace

std::string DidYouMean(const std::string& word, const std::vector<std::string>& words) {
  const std::string meant(orvane::MostSimilar(word, words));
  return meant.empty() ? "" : "; did you mean \"" + meant + "\"?";
}

CLI::Option* AddChoice(CLI::App& verb, const std::string& flag,
                       const std::vector<std::string>& choices, const std::string& help,
                       const std::function<void(const std::string&)>& use) {
  // The choices stand in the help once, as the option's type.
  return verb.add_option_function(flag, use, help)
      ->type_name(CLI::detail::join(choices, "|"))
      ->check(OneOf(choices));
}

CLI::Option* RequireName(CLI::Option* option) {
  return option->check(
      [](const std::string& name) { return name.empty() ? "takes a name that is not empty" : ""; },
      "");
}

}  // namespace cli
