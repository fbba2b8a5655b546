#include "cli/import/marker_targets.h"

#include <cstdint>
#include <optional>
#include <unordered_set>

#include "formats/text/numbers.h"
#include "formats/trc/document.h"
#include "inspect/summary/trc_outline.h"

namespace cli {
namespace {

using orvane::FormatInt;
using orvane::OutlineTrcFile;

Complaint NothingSelected(bool selected_only) {
  const char* const advice = "--into SCENE --select NAME selects in a scene of yours.";
  if (selected_only) {
    return {"--selected-only", "nothing is selected, so nothing is imported", advice};
  }
  return {"--apply", "nothing is selected, so every marker gets a new object", advice};
}

std::unordered_set<std::string> TargetNames(const host::Scene& scene) {
  std::unordered_set<std::string> names;
  for (const host::Node* node : scene.Selection()) {
    names.insert(node->Name());
    for (const host::Node* child : node->Children()) names.insert(child->Name());
  }
  return names;
}

struct Unmatched {
  std::int64_t count = 0;
  std::int64_t of = 0;
  std::string first;
};

Unmatched FindUnmatched(const orvane::TRCDocument& document,
                        const std::unordered_set<std::string>& names) {
  Unmatched unmatched;
  unmatched.of = document.MarkerCount();
  for (const orvane::TRCMarker& marker : document.markers()) {
    if (names.count(marker.Name()) > 0) continue;
    if (unmatched.count++ == 0) unmatched.first = marker.Name();
  }
  return unmatched;
}

std::string Describe(const Unmatched& unmatched, const std::string& object_if_selected_only) {
  const bool is_one = unmatched.count == 1;
  std::string text = FormatInt(unmatched.count) + " of " + FormatInt(unmatched.of) + " markers ";
  if (object_if_selected_only.empty()) {
    text += is_one ? "gets a new object" : "get new objects";
  } else {
    text += is_one ? "moves" : "move";
    text += " the last selected object, " + object_if_selected_only;
  }
  text += ", because no selected one has ";
  text += is_one ? "its name: " : "their names: ";
  return text + unmatched.first + (is_one ? "" : ", ...");
}

}  // namespace

std::vector<Complaint> InspectMarkerTargets(const std::string& file, const ImportChoices& choices,
                                            const host::Scene& scene) {
  if (!choices.apply) return {};
  const bool selected_only = choices.selected_only;
  if (scene.Selection().empty()) return {NothingSelected(selected_only)};

  const std::optional<orvane::TRCOutliner> outline = OutlineTrcFile(file);
  orvane::TRCDocument document;
  if (!outline || !document.ReadBytes(outline->Header(), false).empty()) return {};
  const Unmatched unmatched = FindUnmatched(document, TargetNames(scene));
  if (unmatched.count == 0) return {};
  const std::string object = selected_only ? scene.Selection().back()->Name() : "";
  return {
      {file, Describe(unmatched, object), "Selected objects and their children are looked at."}};
}

}  // namespace cli
