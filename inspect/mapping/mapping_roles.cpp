#include "inspect/mapping/mapping_roles.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "formats/mnm/mapping_lines.h"
#include "formats/mnm/standard_markers.h"

namespace orvane {
namespace {

struct Entry {
  std::string standard;
  std::string marker;
  bool is_told = false;
};

// The entries that count.
std::vector<Entry> EntriesIn(std::string_view bytes) {
  std::vector<Entry> entries;
  std::unordered_set<std::string> markers;
  MappingLineReader reader(bytes);
  for (MappingLine line; reader.Next(line);) {
    if (line.trc_name.empty() || !markers.insert(line.trc_name).second) continue;
    entries.push_back({line.standard_name, line.trc_name});
  }
  return entries;
}

// "Left front head marker", without the name behind it.
std::string DescriptionOf(const StandardMarker& marker) {
  return std::string(marker.description.substr(0, marker.description.rfind(" (")));
}

class Roles {
 public:
  explicit Roles(std::string_view bytes) : entries_(EntriesIn(bytes)) {}

  std::vector<MappingRole> Gather() {
    for (std::size_t step = 0; step < kMarkerSteps; ++step) {
      const MarkerStep& without = MarkerStepAt(step, {});
      const MarkerStep& with_stick = MarkerStepAt(step, {true, true});
      Add(IsAnyMapped(with_stick) ? with_stick : without);
      if (&with_stick != &without) other_steps_.push_back(&without);
    }
    for (Entry& entry : entries_) {
      if (!entry.is_told) roles_.push_back({entry.standard, Known(entry), false, entry.marker});
    }
    return std::move(roles_);
  }

 private:
  [[nodiscard]] bool IsAnyMapped(const MarkerStep& step) const {
    return std::any_of(entries_.begin(), entries_.end(), [&step](const Entry& entry) {
      return std::any_of(step.markers.begin(), step.markers.begin() + step.Count(),
                         [&entry](const auto& marker) { return marker.name == entry.standard; });
    });
  }

  void Add(const MarkerStep& step) {
    for (std::size_t index = 0; index < step.Count(); ++index) Add(step, step.markers[index]);
  }

  void Add(const MarkerStep& step, const StandardMarker& marker) {
    MappingRole role{std::string(marker.name), DescriptionOf(marker), !step.may_be_skipped, ""};
    bool is_mapped = false;
    for (Entry& entry : entries_) {
      if (entry.standard != marker.name) continue;
      is_mapped = entry.is_told = true;
      role.marker = entry.marker;
      roles_.push_back(role);
    }
    if (!is_mapped && role.is_needed) roles_.push_back(role);
  }

  // A wrist's own markers beside those of its stick are known, too.
  [[nodiscard]] std::string Known(const Entry& entry) const {
    for (const MarkerStep* step : other_steps_) {
      for (const StandardMarker& marker : step->markers) {
        if (marker.name == entry.standard) return DescriptionOf(marker);
      }
    }
    return "";
  }

  std::vector<Entry> entries_;
  std::vector<const MarkerStep*> other_steps_;
  std::vector<MappingRole> roles_;
};

}  // namespace

std::vector<MappingRole> RolesIn(std::string_view bytes) { return Roles(bytes).Gather(); }

std::vector<std::string> MarkersIn(std::string_view bytes) {
  std::vector<std::string> markers;
  MappingLineReader reader(bytes);
  for (MappingLine line; reader.Next(line);) markers.push_back(line.trc_name);
  return markers;
}

}  // namespace orvane
