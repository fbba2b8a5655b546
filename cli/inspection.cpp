#include "cli/inspection.h"

#include <algorithm>
#include <optional>

#include "cli/frame_counts.h"
#include "cli/hierarchy.h"
#include "cli/trc_inspection.h"
#include "plugin/htr/reader.h"
#include "plugin/text/numbers.h"

namespace cli {
namespace {

using orvane::FormatInt;

// Segments of the first root's tree, which stands first in `hierarchy`.
std::size_t FirstTreeSize(const std::vector<HierarchyEntry>& hierarchy) {
  const auto next_root = std::find_if(hierarchy.begin() + 1, hierarchy.end(),
                                      [](const HierarchyEntry& entry) { return entry.depth == 0; });
  return static_cast<std::size_t>(next_root - hierarchy.begin());
}

// The plug-in makes a skeleton of the first root and what hangs from it.
std::optional<Complaint> FindLeftOut(const std::string& file, const orvane::HtrDocument& document) {
  const std::vector<HierarchyEntry> hierarchy = ListHierarchy(document);
  if (hierarchy.empty()) return std::nullopt;
  const std::size_t count = document.segments().size();
  const std::size_t left_out = count - FirstTreeSize(hierarchy);
  if (left_out == 0) return std::nullopt;
  const std::string text = FormatInt(static_cast<std::int64_t>(left_out)) + " of " +
                           FormatInt(static_cast<std::int64_t>(count)) +
                           " segments do not hang from the first root, " +
                           hierarchy.front().segment->GetName();
  return Complaint{file, text, "A new skeleton goes without them; \"orvane info\" lists them all."};
}

std::vector<Complaint> InspectHtr(const std::string& file, const std::vector<ControlWish>& wishes) {
  orvane::HtrDocument document;
  orvane::HtrFrameCounts held;
  if (!orvane::CountHtrFrames(document, file, held).empty()) return {};
  if (document.segments().empty()) return {};
  std::vector<Complaint> complaints;
  const auto counts = CompareFrameCounts(file, CountFrames(document, held), wishes);
  if (counts) complaints.push_back(*counts);
  const auto left_out = FindLeftOut(file, document);
  if (left_out) complaints.push_back(*left_out);
  return complaints;
}

}  // namespace

std::vector<Complaint> Inspect(const std::string& file, FileKind kind,
                               const std::vector<ControlWish>& wishes) {
  return kind == FileKind::kTrc ? InspectTrc(file, wishes) : InspectHtr(file, wishes);
}

}  // namespace cli
