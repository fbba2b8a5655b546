#include "cli/help/mistakes.h"

#include <CLI/CLI.hpp>
#include <optional>

#include "cli/common/choice.h"
#include "cli/help/definitions.h"

namespace cli {
namespace {

// The program, and the verbs that its arguments named.
std::vector<const CLI::App*> NamedVerbs(const CLI::App& app) {
  std::vector<const CLI::App*> verbs = {&app};
  while (!verbs.back()->get_subcommands().empty()) {
    verbs.push_back(verbs.back()->get_subcommands().front());
  }
  return verbs;
}

Failure WrongWord(const CLI::App& app, const std::string& text, const std::string& more = "") {
  return {ExitStatus::kWrongUsage,
          {{"", text, "\"" + CommandOf(app) + " --help\" lists what there is." + more}}};
}

Failure UnknownFlag(const CLI::App& app, const std::string& word) {
  std::vector<std::string> flags;
  for (const Definition& each : FlagsOf(app)) {
    flags.insert(flags.end(), each.names.begin(), each.names.end());
  }
  const std::string flag = word.substr(0, word.find('='));
  const std::string meant = DidYouMean(flag, flags);
  const std::string file = " A file of that name is \"./" + word + "\".";
  return WrongWord(app, "there is no flag \"" + flag + "\"" + meant, meant.empty() ? file : "");
}

bool IsFlag(const std::string& word) { return word.size() > 1 && word.front() == '-'; }

// Why one of the words that `app` could not take is none for it.
std::optional<Failure> ExplainUnknownWord(const CLI::App& app) {
  for (const std::string& word : app.remaining()) {
    if (word == "--") return {};  // flags end there
    if (IsFlag(word)) return UnknownFlag(app, word);
    if (!VerbsOf(app).empty()) return UnknownVerb(app, word);
  }
  return {};
}

// The parser counts values; a user knows flags.
std::string ExplainMismatch(const std::string& text) {
  const std::string flag = text.substr(0, text.find(':'));
  const bool too_many = text.find("At Most") != std::string::npos;
  return flag + (too_many ? " is given more than once" : " needs a value");
}

std::string Explain(const CLI::App& verb, const CLI::ParseError& error) {
  const std::string text = error.what();
  if (error.get_name() == "ArgumentMismatch") return ExplainMismatch(text);
  if (text != "A subcommand is required") return text;
  return "a verb is missing behind \"" + verb.get_name() + "\"";
}

}  // namespace

Failure WrongUsage(const CLI::App& app, const CLI::ParseError& error) {
  for (const CLI::App* verb : NamedVerbs(app)) {
    if (const auto failure = ExplainUnknownWord(*verb)) return *failure;
  }
  const CLI::App& verb = VerbNamedLast(app);
  return WrongWord(verb, Explain(verb, error));
}

Failure UnknownVerb(const CLI::App& app, const std::string& name) {
  std::vector<std::string> verbs;
  for (const CLI::App* verb : VerbsOf(app)) {
    verbs.push_back(verb->get_name());
    for (const CLI::App* own : VerbsOf(*verb)) {
      if (own->get_name() != name) continue;
      return WrongWord(app, "there is no verb \"" + name + "\"; did you mean \"" +
                                verb->get_name() + " " + name + "\"?");
    }
  }
  return WrongWord(app, "there is no verb \"" + name + "\"" + DidYouMean(name, verbs));
}

void RequireKnownVerbs(const CLI::App& app) {
  const CLI::App& verb = VerbNamedLast(app);
  if (VerbsOf(verb).empty()) return;
  for (const std::string& word : verb.remaining()) {
    if (!IsFlag(word)) throw UnknownVerb(verb, word);
  }
}

const CLI::App& VerbNamedLast(const CLI::App& app) { return *NamedVerbs(app).back(); }

}  // namespace cli
