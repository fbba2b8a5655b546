#include "cli/manual/man_page.h"

#include <CLI/CLI.hpp>
#include <algorithm>

#include "cli/help/definitions.h"
#include "cli/help/examples.h"
#include "cli/manual/program_page.h"
#include "cli/manual/roff.h"

namespace cli {
namespace {

// Names of flags are to be found whole.
constexpr const char* kNoHyphenation = ".nh\n.ad l\n";

const CLI::App& ProgramOf(const CLI::App& app) {
  return app.get_parent() == nullptr ? app : ProgramOf(*app.get_parent());
}

// As pages begin what they are for: "orvane-info - tell what ...".
std::string Phrase(std::string sentence) {
  if (!sentence.empty() && sentence.back() == '.') sentence.pop_back();
  if (!sentence.empty()) sentence.front() = CLI::detail::to_lower(sentence.substr(0, 1)).front();
  return sentence;
}

std::string Head(const CLI::App& app) {
  std::string title = PageName(app);
  std::transform(title.begin(), title.end(), title.begin(), [](char letter) {
    return letter >= 'a' && letter <= 'z' ? static_cast<char>(letter - 'a' + 'A') : letter;
  });
  return ".TH " + Escaped(title) + " 1 \"\" \"" + Escaped(ProgramOf(app).version()) +
         "\" \"orvane\"\n" + kNoHyphenation + Section("NAME") + Escaped(PageName(app)) + " \\- " +
         Escaped(Phrase(app.get_description())) + "\n" + Section("SYNOPSIS") +
         Bold(CommandOf(app)) + " " + Escaped(UsageOf(app)) + "\n" + Section("DESCRIPTION") +
         Escaped(GuideOf(VerbOf(app)).description) + "\n";
}

std::string Tag(const Definition& definition) {
  std::string tag;
  for (const std::string& name : definition.names) {
    tag += (tag.empty() ? "" : ", ") + Bold(name);
  }
  return definition.value.empty() ? tag : tag + " " + Italic(definition.value);
}

std::string Definitions(const std::string& title, const std::vector<Definition>& definitions) {
  std::string entries;
  for (const Definition& each : definitions) entries += Entry(Tag(each), Escaped(each.text));
  return entries.empty() ? "" : Section(title) + entries;
}

std::string Reference(const CLI::App& app) { return Bold(PageName(app)) + "(1)"; }

std::string Verbs(const CLI::App& app) {
  std::string entries;
  for (const CLI::App* verb : VerbsOf(app)) {
    entries += Entry(Reference(*verb), Escaped(verb->get_description()));
  }
  return entries.empty() ? "" : Section("VERBS") + entries;
}

std::string Examples(const CLI::App& app) {
  std::string entries = Section("EXAMPLES");
  for (const Example& example : GuideOf(VerbOf(app)).examples) {
    entries += Entry(Bold(example.command), Escaped(example.effect));
  }
  return entries;
}

}  // namespace

std::string PageName(const CLI::App& app) {
  std::string name = CommandOf(app);
  std::replace(name.begin(), name.end(), ' ', '-');
  return name;
}

std::string ManPage(const CLI::App& app) {
  const bool is_program = app.get_parent() == nullptr;
  std::string page = Head(app) + Definitions("ARGUMENTS", PositionalsOf(app)) + Verbs(app) +
                     Definitions("OPTIONS", FlagsOf(app)) + Examples(app);
  if (is_program) return page + ProgramSections();
  return page + Section("EXIT STATUS") + "As that of " + Reference(ProgramOf(app)) + ".\n" +
         Section("SEE ALSO") + Reference(*app.get_parent()) + "\n";
}

}  // namespace cli
