#pragma once

#include <optional>
#include <string>
#include <vector>

#include "formats/mnm/marker_name_map.h"
#include "formats/trc/document.h"
#include "inspect/check/text_flaw.h"

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

  // What is wrong with all of the text of the mapping file; nothing when that cannot be seen.
  [[nodiscard]] std::optional<TextFlaw> Flaw() const { return flaw_; }

  // The mapping file; empty when there is none.
  [[nodiscard]] const std::string& File() const { return file_; }

  // What is to be said of the markers of `document` that are written under one name: a text for
  // each such name, in the order of the first markers.
  [[nodiscard]] std::vector<std::string> DescribeClashes(const TRCDocument& document) const;

 private:
  MarkerNameMap mapping_;
  std::string file_;
  std::optional<TextFlaw> flaw_;
};

}  // namespace orvane
