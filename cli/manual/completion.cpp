#include "cli/manual/completion.h"

#include <CLI/CLI.hpp>

#include "cli/help/definitions.h"
#include "cli/manual/values.h"

namespace cli {
namespace {

using Apps = std::vector<const CLI::App*>;
using Words = std::vector<std::string>;

constexpr const char* kHelpers = R"(
# _orvane_words WORDS: those that begin like the word at hand.
_orvane_words() {
  mapfile -t COMPREPLY < <(compgen -W "$1" -- "$word")
}

_orvane_folders() {
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(compgen -d -- "$word")
}

# _orvane_files EXTENSION...: files of these extensions, or of any, and folders.
_orvane_files() {
  local extension
  compopt -o filenames 2>/dev/null
  mapfile -t COMPREPLY < <(
    (($# > 0)) || compgen -f -- "$word"
    (($# == 0)) || compgen -d -- "$word"
    for extension; do compgen -f -X "!*.$extension" -- "$word"; done
  )
}

# What a flag takes that nobody but the user knows.
_orvane_unknown() {
  compopt +o default 2>/dev/null
}
)";

constexpr const char* kBeginning = R"(
_orvane() {
  local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} verb='' index
  COMPREPLY=()
  # A flag and its value with "=" between them come as three words.
  if [[ $word == '=' ]]; then
    word=''
  elif [[ $before == '=' ]]; then
    before=${COMP_WORDS[COMP_CWORD - 2]}
  fi
)";

std::string Quoted(const std::string& text) { return "'" + text + "'"; }

// Of any case.
std::string ExtensionPattern(const std::string& extension) {
  std::string pattern;
  for (const char letter : extension) {
    pattern += {'[', letter, static_cast<char>(letter - 'a' + 'A'), ']'};
  }
  return pattern;
}

void AddAll(const CLI::App& app, Apps& all) {
  all.push_back(&app);
  for (const CLI::App* verb : VerbsOf(app)) AddAll(*verb, all);
}

Words NamesOf(const Apps& verbs) {
  Words names;
  for (const CLI::App* verb : verbs) names.push_back(verb->get_name());
  return names;
}

class Script {
 public:
  explicit Script(const CLI::App& app) {
    AddAll(app, apps_);
    verbs_.assign(apps_.begin() + 1, apps_.end());
    text_ = "# Completes command lines of " + app.version() + " in bash.\n";
  }

  std::string Write() {
    text_ += kHelpers;
    text_ += kBeginning;
    WriteVerbSearch();
    WriteValues();
    WriteWords();
    return text_ + "}\n\ncomplete -o bashdefault -o default -F _orvane orvane\n";
  }

 private:
  void WriteVerbSearch() {
    std::string pattern;
    for (const CLI::App* verb : verbs_) {
      pattern += (pattern.empty() ? "" : " | ") + Quoted(VerbOf(*verb));
    }
    text_ +=
        "  for ((index = 1; index < COMP_CWORD; ++index)); do\n"
        "    case ${verb:+$verb }${COMP_WORDS[index]} in\n"
        "      " +
        pattern +
        ") verb=${verb:+$verb }${COMP_WORDS[index]} ;;\n"
        "    esac\n"
        "  done\n";
  }

  // What stands behind a flag that takes something.
  void WriteValues() {
    text_ += "  case \"$verb $before\" in\n";
    for (const CLI::App* verb : verbs_) {
      for (const Definition& flag : FlagsOf(*verb)) {
        if (!flag.value.empty()) WriteValuesOf(*verb, flag);
      }
    }
    text_ += "  esac\n";
  }

  void WriteValuesOf(const CLI::App& verb, const Definition& flag) {
    std::string pattern;
    for (const std::string& name : flag.names) {
      pattern += (pattern.empty() ? "" : " | ") + Quoted(VerbOf(verb) + " " + name);
    }
    text_ += "    " + pattern + ") " + CallFor(ValuesOf(flag)) + "; return ;;\n";
  }

  // Where a flag, a verb or a file may stand.
  void WriteWords() {
    text_ += "  case $verb in\n";
    for (const CLI::App* app : apps_) {
      Words flags;
      for (const Definition& flag : FlagsOf(*app)) {
        flags.insert(flags.end(), flag.names.begin(), flag.names.end());
      }
      const Apps verbs = VerbsOf(*app);
      text_ +=
          "    " + Quoted(VerbOf(*app)) +
          ")\n"
          "      case $word in\n"
          "        -*) " +
          WordsCall(flags) +
          " ;;\n"
          "        *) " +
          (verbs.empty() ? CallFor(ValuesOf(PositionalsOf(*app))) : WordsCall(NamesOf(verbs))) +
          " ;;\n"
          "      esac\n"
          "      ;;\n";
    }
    text_ += "  esac\n";
  }

  static std::string WordsCall(const Words& words) {
    return "_orvane_words " + Quoted(CLI::detail::join(words, " "));
  }

  // Verbs as they are typed: of a verb that has some of its own, those stand behind it.
  std::string VerbsCall() const {
    std::string call = "case $before in";
    for (const CLI::App* verb : verbs_) {
      const Apps own = VerbsOf(*verb);
      if (own.empty()) continue;
      call += " " + Quoted(verb->get_name()) + ") " + WordsCall(NamesOf(own)) + " ;;";
    }
    return call + " *) " + WordsCall(NamesOf(VerbsOf(*apps_.front()))) + " ;; esac";
  }

  std::string CallFor(const Values& values) const {
    switch (values.kind) {
      case Values::Kind::kWords:
        return WordsCall(values.words);
      case Values::Kind::kVerbs:
        return VerbsCall();
      case Values::Kind::kFolders:
        return "_orvane_folders";
      case Values::Kind::kFiles: {
        std::string call = "_orvane_files";
        for (const std::string& each : values.extensions)
          call += " " + Quoted(ExtensionPattern(each));
        return call;
      }
      case Values::Kind::kUnknown:
        break;
    }
    return "_orvane_unknown";
  }

  Apps apps_;   // the program, and all verbs
  Apps verbs_;  // all verbs
  std::string text_;
};

}  // namespace

std::string BashCompletion(const CLI::App& app) { return Script(app).Write(); }

}  // namespace cli
