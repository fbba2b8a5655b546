#pragma once

#include <optional>
#include <string>

#include "formats/mnm/marker_name_map.h"

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

 private:
  MarkerNameMap mapping_;
  std::string file_;
};

}  // namespace orvane
