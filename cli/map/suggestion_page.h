#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "inspect/mapping/name_suggestion.h"
#include "inspect/report/report.h"

// What `orvane map suggest` tells: as a page for a person, or as JSON for a program.
// docs/command-line.md documents the JSON.

namespace cli {

struct SuggestionReport {
  std::string file;
  std::string output;                // the mapping file that was written; empty for none
  std::vector<std::string> markers;  // names, by the indices of the suggestion
  orvane::NameSuggestion suggestion;
  orvane::FileReport findings;
};

void PrintSuggestionPage(const SuggestionReport& report, std::ostream& out);
void PrintSuggestionJson(const SuggestionReport& report, std::ostream& out);

}  // namespace cli
