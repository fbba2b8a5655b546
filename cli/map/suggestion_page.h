#pragma once

#include <ostream>

#include "cli/map/suggestion_report.h"

// What `orvane map suggest` tells: as a page for a person, or as JSON for a program.
// docs/command-line.md documents the JSON.

namespace cli {

void PrintSuggestionPage(const SuggestionReport& report, std::ostream& out);
void PrintSuggestionJson(const SuggestionReport& report, std::ostream& out);

}  // namespace cli
