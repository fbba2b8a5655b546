#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

#include "formats/mnm/marker_name_map.h"
#include "inspect/mapping/name_matching.h"

// The names that a conversion writes markers under. Files are read once, and what is kept of them
// is copied. Nothing fails but for want of memory and where it says so.

namespace orvane {

class MarkerNaming {
 public:
  // All markers keep their names.
  MarkerNaming() = default;

  // From now on by the mapping file `path`. Returns false when it cannot be read.
  [[nodiscard]] bool Load(const std::string& path);

  // The name that `marker` is written under; nothing when it is dropped.
  [[nodiscard]] std::optional<std::string> NameFor(const std::string& marker) const;

  // Which of `markers` are taken for which that the mapping names; none without a mapping.
  [[nodiscard]] NameMatch Match(std::span<const std::string> markers, NameMatching how) const;

  // The bytes of a mapping file that is the same, and has entries for the markers, too, that are
  // taken for those that it names, as far as a mapping can name them.
  // REQUIRES: a file is loaded, and `match` is of it.
  [[nodiscard]] std::string MappingFor(const NameMatch& match) const;

 private:
  MarkerNameMap mapping_;
  std::string file_;
  std::string bytes_;               // of the file
  std::vector<std::string> names_;  // of the markers that it has entries for
};

}  // namespace orvane
