#include "cli/help/help_page.h"

#include <CLI/CLI.hpp>
#include <sstream>

#include "cli/common/page_text.h"
#include "cli/help/definitions.h"

namespace cli {
namespace {

constexpr std::size_t kWidth = 80;
constexpr std::size_t kTextColumn = 30;

// `text` in lines that end before `kWidth`, each behind `indent` blanks but the first.
std::string Wrap(const std::string& text, std::size_t indent) {
  std::string wrapped;
  std::size_t column = indent;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const bool is_first = column == indent;
    if (!is_first && column + 1 + Width(word) >= kWidth) {
      wrapped += "\n" + std::string(indent, ' ');
      column = indent;
    } else if (!is_first) {
      wrapped += " ";
      ++column;
    }
    wrapped += word;
    column += Width(word);
  }
  return wrapped;
}

// A name that is too long for its column has a line of its own.
std::string Line(const std::string& name, const std::string& text) {
  const std::string left = "  " + name;
  const bool fits = Width(left) + 2 <= kTextColumn;
  return PadRight(fits ? left : left + "\n", kTextColumn) +
         (fits ? "" : std::string(kTextColumn, ' ')) + Wrap(text, kTextColumn) + "\n";
}

std::string Lines(const std::string& title, const std::vector<Definition>& definitions) {
  std::string lines;
  for (const Definition& each : definitions) {
    const std::string value = each.value.empty() ? "" : " " + each.value;
    lines += Line(CLI::detail::join(each.names, ", ") + value, each.text);
  }
  return lines.empty() ? "" : "\n" + title + ":\n" + lines;
}

std::string VerbLines(const CLI::App& app) {
  std::string lines;
  for (const CLI::App* verb : VerbsOf(app))
    lines += Line(verb->get_name(), verb->get_description());
  return lines.empty() ? "" : "\nVerbs:\n" + lines;
}

class HelpPages final : public CLI::FormatterBase {
 public:
  std::string make_help(const CLI::App* app, std::string /*name*/,
                        CLI::AppFormatMode /*mode*/) const override {
    return Wrap(app->get_description(), 0) + "\n\n" + ExamplesOf(GuideOf(VerbOf(*app))) +
           "\nUsage: " + CommandOf(*app) + " " + UsageOf(*app) + "\n" +
           Lines("Arguments", PositionalsOf(*app)) + VerbLines(*app) +
           Lines("Options", FlagsOf(*app));
  }
};

}  // namespace

std::shared_ptr<CLI::FormatterBase> MakeHelpPages() { return std::make_shared<HelpPages>(); }

std::string ExamplesOf(const VerbGuide& guide) {
  std::string lines = "Examples:\n";
  for (const Example& example : guide.examples) {
    lines += "  " + std::string(example.command) + "\n      " + std::string(example.effect) + "\n";
  }
  return lines;
}

}  // namespace cli
