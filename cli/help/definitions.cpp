#include "cli/help/definitions.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <set>

namespace cli {
namespace {

using Options = std::vector<const CLI::Option*>;

bool TakesValue(const CLI::Option& option) { return option.get_expected_max() != 0; }

std::vector<std::string> NamesOf(const CLI::Option& option) {
  std::vector<std::string> names;
  for (const std::string& name : option.get_snames()) names.push_back("-" + name);
  for (const std::string& name : option.get_lnames()) names.push_back("--" + name);
  return names;
}

bool IsIn(const std::set<CLI::Option*>& options, const CLI::Option* option) {
  return std::find(options.begin(), options.end(), option) != options.end();
}

bool Excludes(const CLI::Option& option, const CLI::Option* other) {
  return IsIn(option.get_excludes(), other);
}

// The flag among `earlier` that `option` is the opposite of; null for none.
const CLI::Option* OppositeOf(const CLI::Option& option, const Options& earlier) {
  if (TakesValue(option)) return nullptr;
  const std::string name = option.get_name();
  const auto opposite = std::find_if(earlier.begin(), earlier.end(), [&](const auto* each) {
    return !TakesValue(*each) && Excludes(option, each) &&
           name == "--no-" + each->get_name().substr(2);
  });
  return opposite == earlier.end() ? nullptr : *opposite;
}

// The names of those for which `is_meant` holds and which `text` does not tell of itself.
template <typename Predicate>
std::string Untold(const Options& options, const std::string& text, const Predicate& is_meant) {
  std::string names;
  for (const CLI::Option* each : options) {
    const std::string name = each->get_name();
    if (!is_meant(each) || text.find(name) != std::string::npos) continue;
    names += (names.empty() ? "" : ", ") + name;
  }
  return names;
}

// Of two flags that do not go together, only the later one says so.
std::string TextOf(const CLI::Option& option, const Options& all, const Options& earlier) {
  std::string text = option.get_description();
  if (option.get_required()) text += " (required)";
  const std::string not_with =
      Untold(earlier, text, [&](const CLI::Option* each) { return Excludes(option, each); });
  const std::string with =
      Untold(all, text, [&](const CLI::Option* each) { return IsIn(option.get_needs(), each); });
  if (!not_with.empty()) text += " (not with " + not_with + ")";
  if (!with.empty()) text += " (only with " + with + ")";
  return text;
}

std::string PositionalUsage(const CLI::Option& option) {
  const bool is_list = option.get_expected_max() >= CLI::detail::expected_max_vector_size;
  const std::string name = option.get_name(true, false) + (is_list ? "..." : "");
  return option.get_required() ? name : "[" + name + "]";
}

}  // namespace

std::vector<Definition> FlagsOf(const CLI::App& verb) {
  std::vector<Definition> flags;
  const Options all =
      verb.get_options([](const CLI::Option* each) { return each->nonpositional(); });
  Options earlier;
  for (const CLI::Option* option : all) {
    if (const CLI::Option* opposite = OppositeOf(*option, earlier)) {
      const auto first = std::find_if(flags.begin(), flags.end(), [opposite](const auto& each) {
        return each.option == opposite;
      });
      first->names.push_back(option->get_name());
    } else {
      flags.push_back({option, NamesOf(*option),
                       TakesValue(*option) ? option->get_type_name() : std::string(),
                       TextOf(*option, all, earlier)});
    }
    earlier.push_back(option);
  }
  return flags;
}

std::vector<Definition> PositionalsOf(const CLI::App& verb) {
  std::vector<Definition> positionals;
  for (const CLI::Option* option :
       verb.get_options([](const CLI::Option* each) { return each->get_positional(); })) {
    positionals.push_back({option, {option->get_name(true, false)}, "", TextOf(*option, {}, {})});
  }
  return positionals;
}

std::vector<const CLI::App*> VerbsOf(const CLI::App& app) {
  return app.get_subcommands([](const CLI::App* /*each*/) { return true; });
}

std::string CommandOf(const CLI::App& app) {
  const CLI::App* parent = app.get_parent();
  return parent == nullptr ? app.get_name() : CommandOf(*parent) + " " + app.get_name();
}

std::string VerbOf(const CLI::App& app) {
  const std::string command = CommandOf(app);
  const std::size_t blank = command.find(' ');
  return blank == std::string::npos ? "" : command.substr(blank + 1);
}

std::string UsageOf(const CLI::App& app) {
  if (!VerbsOf(app).empty()) return "VERB ...";
  std::string usage = "[OPTIONS]";
  for (const Definition& each : PositionalsOf(app)) usage += " " + PositionalUsage(*each.option);
  for (const Definition& each : FlagsOf(app)) {
    if (each.option->get_required()) usage += " " + each.names.front() + " " + each.value;
  }
  return usage;
}

}  // namespace cli
