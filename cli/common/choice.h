#pragma once

#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace cli {

// "; did you mean "import"?", of the one of `words` that `word` is most likely to be; empty when it
// is like none.
[[nodiscard]] std::string DidYouMean(const std::string& word,
                                     const std::vector<std::string>& words);

// Adds an option to `verb` that takes one word of `choices`; `use` is called with it.
// Returns the option.
CLI::Option* AddChoice(CLI::App& verb, const std::string& flag,
                       const std::vector<std::string>& choices, const std::string& help,
                       const std::function<void(const std::string&)>& use);

// Has `option`, which takes the name of a file or folder, refuse an empty one: scripts make it of a
// variable that is not set. Returns the option.
CLI::Option* RequireName(CLI::Option* option);

}  // namespace cli
