#include "formats/trc/document_checker.h"

#include <cstddef>
#include <unordered_set>
#include <vector>

namespace orvane {
namespace {

std::string FaultOfGaps(const TRCMarker& marker, const std::vector<TRCMarker::Gap>& gaps) {
  std::size_t end = 0;
  bool is_first = true;
  for (const TRCMarker::Gap& gap : gaps) {
    if (gap.begin >= gap.end) return marker.Name() + " has an empty gap";
    if (!is_first && gap.begin <= end) return marker.Name() + " has gaps that touch";
    if (marker.PositionAt(gap.begin) != nullptr) return marker.Name() + " is there in a gap";
    end = gap.end;
    is_first = false;
  }
  if (end > marker.SampleCount()) return marker.Name() + " has a gap past its end";
  return {};
}

std::string FaultOfEnd(const TRCMarker& marker) {
  double x = 1.0;
  double y = 1.0;
  double z = 1.0;
  const bool present = marker.GetSample(marker.SampleCount(), x, y, z);
  if (present || x != 0.0 || y != 0.0 || z != 0.0) return marker.Name() + " goes on past its end";
  return {};
}

}  // namespace

std::string FindFault(const TRCDocument& document) {
  std::unordered_set<std::string> names;
  if (document.MarkerAt(document.MarkerCount()) != nullptr) return "a marker beyond the count";
  const auto gaps = document.Gaps();
  std::size_t index = 0;
  for (const TRCMarker& marker : document.markers()) {
    if (!names.insert(marker.Name()).second) return "two markers named " + marker.Name();
    if (marker.SampleCount() != document.markers().front().SampleCount()) {
      return marker.Name() + " has another number of samples than the first marker";
    }
    for (const std::string& fault : {FaultOfGaps(marker, gaps[index++]), FaultOfEnd(marker)}) {
      if (!fault.empty()) return fault;
    }
  }
  return {};
}

}  // namespace orvane
