#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "cli/common/failure.h"
#include "formats/mnm/marker_name_map.h"
#include "formats/mnm/standard_markers.h"

// The table of picks for `orvane map create`: which marker plays the role of which standard marker.
// One line each: the standard name, white space, the marker name or a `-` for none; blank lines and
// lines that begin with # say nothing.

namespace cli {

class PicksTable {
 public:
  // Reads the table in the file `path`. Throws a Failure when it cannot be read, or when the table
  // cannot be carried out on the markers `names`, with `sticks` or without: then what is wrong is
  // named, up to ten things, and of a file that is no table one. A marker is wrong when there is
  // none or several of that name, or when it is to be picked twice; a standard marker when it is
  // none, comes twice, or is left out though it cannot be skipped.
  PicksTable(const std::string& path, const std::vector<std::string>& names,
             const orvane::WristSticks& sticks);

  // The marker to pick for `standard_name`; nothing when that is to be skipped.
  [[nodiscard]] std::optional<std::string> PickFor(const std::string& standard_name) const;

  [[nodiscard]] std::size_t Count() const { return picks_.size(); }

  // Whether `mapping` has an entry for each pick.
  [[nodiscard]] bool AreIn(const orvane::MarkerNameMap& mapping) const;

 private:
  void Read(const std::string& path);
  void ReadLine(std::string_view line, std::size_t number);
  void CheckMarkers(const std::vector<std::string>& names);
  void CheckSteps(const orvane::WristSticks& sticks);
  std::vector<Complaint> Told() const;
  void Complain(std::size_t line, const std::string& text);

  std::string path_;
  std::map<std::string, std::string> picks_;          // by standard name, without those to skip
  std::map<std::string, std::size_t> lines_;          // by standard name
  std::multimap<std::size_t, Complaint> complaints_;  // by line
  std::optional<Complaint> what_it_is_;               // where it is not what it looks like
};

}  // namespace cli
