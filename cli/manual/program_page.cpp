#include "cli/manual/program_page.h"

#include <initializer_list>

#include "cli/manual/roff.h"

namespace cli {
namespace {

struct Row {
  const char* name;
  const char* text;
};

std::string Rows(const std::string& title, std::initializer_list<Row> rows) {
  std::string entries = Section(title);
  for (const Row& row : rows) entries += Entry(Bold(row.name), Escaped(row.text));
  return entries;
}

}  // namespace

std::string ProgramSections() {
  return Rows("EXIT STATUS",
              {{"0", "Done."},
               {"1",
                "The file or the plug-in refused; with --strict, a warning too. Of compare: the "
                "files "
                "differ. Of check and map lint: a warning or an error was found."},
               {"2", "Wrong usage: the arguments, or a flag whose control is disabled."},
               {"3",
                "Something could not be read or written. Of compare: a file that is refused, too."},
               {"130", "Interrupted; nothing is left behind."}}) +
         Rows("FILES", {{"~/.config/orvane/settings.sqlite",
                         "The options that were chosen last, for --settings user. Nothing else is "
                         "read from it, "
                         "and without that flag nothing is stored there."}}) +
         Rows("ENVIRONMENT",
              {{"NO_COLOR", "Set and not empty: nothing is colored on a terminal."},
               {"SOURCE_DATE_EPOCH",
                "The moment that files are dated with, in seconds since 1970, in place of now."},
               {"XDG_CONFIG_HOME", "The folder that takes the place of ~/.config."}}) +
         Section("SEE ALSO") + "Each verb has a page of its own, such as " + Bold("orvane-import") +
         "(1). The pages below share/doc/orvane/docs tell all of it, with the file formats.\n";
}

}  // namespace cli
