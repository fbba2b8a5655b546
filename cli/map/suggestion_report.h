#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "formats/trc/document.h"
#include "inspect/mapping/name_suggestion.h"
#include "inspect/mapping/placed_marker.h"
#include "inspect/report/report.h"

// What is suggested for a file, and why, whether by names or by geometry.

namespace cli {

struct SuggestedRow {
  std::string standard;
  std::size_t marker = 0;  // index of the marker
  std::string reason;      // a word for programs
  std::string words;       // the same for a person
};

// Markers are indices into `markers`.
struct SuggestionReport {
  std::string file;
  std::string output;                // the mapping file that was written; empty for none
  std::vector<std::string> markers;  // their names
  bool is_by_geometry = false;
  std::vector<SuggestedRow> suggested;
  std::vector<orvane::AmbiguousMarker> ambiguous;  // by names
  std::vector<orvane::UnsurePlace> unsure;         // by geometry
  std::vector<std::string> missing;
  std::vector<std::size_t> without_role;
  std::vector<std::size_t> unmappable;
  std::vector<std::string> subjects;
  orvane::FileReport findings;
};

// Fills in what the names of `markers` say. `subject` is as for SuggestByNames.
void SuggestByNames(SuggestionReport& report, const std::string& subject);

// Fills in what the places of the markers say. A marker that no mapping can name, or whose name
// another one has too, is not suggested. Returns why nothing is, as a sentence without its full
// stop; empty when something may be.
[[nodiscard]] std::string SuggestByGeometry(SuggestionReport& report,
                                            const orvane::TRCDocument& document);

}  // namespace cli
