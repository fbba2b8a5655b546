#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formats/mnm/marker_name_map.h"
#include "formats/trc/document.h"

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

  // Whether any marker of `document` is written.
  [[nodiscard]] bool KeepsAny(const TRCDocument& document) const;

  // What is to be said of the markers of `document` that are written under one name: a text for
  // each such name, in the order of the first markers.
  [[nodiscard]] std::vector<std::string> DescribeClashes(const TRCDocument& document) const;

 private:
  MarkerNameMap mapping_;
  std::string file_;
};

}  // namespace orvane
