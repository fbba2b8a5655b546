#include "cli/help/greeting.h"

#include <iostream>

#include "cli/help/examples.h"
#include "cli/help/help_page.h"

namespace cli {

ExitStatus Greet() {
  std::cerr
      << "orvane brings motion-capture files into scenes that any glTF viewer plays, and skeletons "
         "out.\n"
         "\"orvane help\" lists its verbs, and \"orvane help VERB\" the flags of one.\n"
         "All of it is in docs/command-line.md, and where man pages are, in \"man orvane\".\n\n"
      << ExamplesOf(GuideOf(""));
  return ExitStatus::kWrongUsage;
}

}  // namespace cli
