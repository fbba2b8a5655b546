#include "formats/edit/selection.h"

#include <limits>
#include <unordered_set>
#include <vector>

#include "formats/edit/document_copies.h"

namespace orvane {
namespace {

constexpr std::size_t kAll = std::numeric_limits<std::size_t>::max();

}  // namespace

void SelectSegments(const HtrDocument& source, const std::set<std::string>& names,
                    HtrDocument& target) {
  std::unordered_set<const HtrSegment*> wanted;
  for (const HtrSegment& segment : source.segments()) {
    if (!names.contains(segment.GetName())) continue;
    // Links may form a circle.
    for (const HtrSegment* above = &segment; above != nullptr && wanted.insert(above).second;) {
      above = above->GetParent();
    }
  }
  std::vector<std::size_t> kept;
  kept.reserve(wanted.size());
  for (std::size_t index = 0; index < source.segments().size(); ++index) {
    if (wanted.contains(&source.segments()[index])) kept.push_back(index);
  }
  CopyWithoutFrames(source, kept, target);
  for (std::size_t at = 0; at < kept.size(); ++at) {
    AppendFrames(source.segments()[kept[at]], 0, kAll, target.segments()[at]);
  }
}

void SelectMarkers(const TRCDocument& source, const std::set<std::string>& names,
                   TRCDocument& target) {
  std::vector<std::size_t> kept;
  kept.reserve(names.size());
  for (std::size_t index = 0; index < source.MarkerCount(); ++index) {
    if (names.contains(source.MarkerAt(index)->Name())) kept.push_back(index);
  }
  CopyWithoutFrames(source, kept, target);
  for (std::size_t at = 0; at < kept.size(); ++at) {
    AppendFrames(*source.MarkerAt(kept[at]), 0, kAll, *target.MarkerAt(at));
  }
}

}  // namespace orvane
