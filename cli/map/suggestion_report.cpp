#include "cli/map/suggestion_report.h"

#include <algorithm>
#include <utility>

#include "cli/common/messages.h"
#include "inspect/mapping/geometry_suggestion.h"
#include "inspect/mapping/mappable_marker.h"

namespace cli {
namespace {

using orvane::NameReason;

std::string Describe(NameReason reason, const std::string& name, const std::string& standard) {
  switch (reason) {
    case NameReason::kSame:
      return "the same name";
    case NameReason::kSubject:
      return "the same name behind " +
             Printable("\"" + name.substr(0, name.size() - standard.size()) + "\"");
    case NameReason::kCase:
      return "the same name but for capital letters";
    case NameReason::kSynonym:
      return "a usual name of the same place";
  }
  return "";
}

const char* WordFor(NameReason reason) {
  constexpr const char* kWords[] = {"same", "subject", "case", "synonym"};
  return kWords[static_cast<std::size_t>(reason)];
}

}  // namespace

void SuggestByNames(SuggestionReport& report, const std::string& subject) {
  orvane::NameSuggestion suggestion = orvane::SuggestByNames(report.markers, subject);
  for (const orvane::SuggestedMarker& sure : suggestion.sure) {
    report.suggested.push_back({sure.standard, sure.marker, WordFor(sure.reason),
                                Describe(sure.reason, report.markers[sure.marker], sure.standard)});
  }
  report.ambiguous = std::move(suggestion.ambiguous);
  report.missing = std::move(suggestion.missing);
  report.without_role = std::move(suggestion.without_role);
  report.unmappable = std::move(suggestion.unmappable);
  report.subjects = std::move(suggestion.subjects);
}

std::string SuggestByGeometry(SuggestionReport& report, const orvane::TRCDocument& document) {
  orvane::GeometrySuggestion suggestion = orvane::SuggestByGeometry(document);
  report.is_by_geometry = true;
  for (const orvane::PlacedMarker& sure : suggestion.sure) {
    if (orvane::CanBeMapped(report.markers, sure.marker)) {
      report.suggested.push_back({sure.standard, sure.marker, "geometry", sure.place});
    } else {
      report.unmappable.push_back(sure.marker);
    }
  }
  std::sort(report.unmappable.begin(), report.unmappable.end());
  report.unsure = std::move(suggestion.unsure);
  report.missing = std::move(suggestion.missing);
  report.without_role = std::move(suggestion.without_role);
  if (report.suggested.empty() && suggestion.problem.empty()) {
    return "No marker of it sits where a standard marker does for sure";
  }
  return suggestion.problem;
}

}  // namespace cli
