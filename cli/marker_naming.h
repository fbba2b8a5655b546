#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/failure.h"
#include "formats/mnm/marker_name_map.h"
#include "formats/trc/document.h"

// The names that a conversion writes markers under.

namespace cli {

class MarkerNaming {
 public:
  // By the file `mapping`; when that is empty all markers keep their names. Throws a Failure when
  // it cannot be read.
  explicit MarkerNaming(const std::string& mapping);

  // The name that `marker` is written under; nothing when it is dropped.
  std::optional<std::string> NameFor(const std::string& marker) const;

  // Whether any marker of `document` is written.
  bool KeepsAny(const orvane::TRCDocument& document) const;

  // What is wrong with all of the text of the mapping file; nothing when that cannot be seen.
  const std::optional<Complaint>& DescribeFlaw() const { return flaw_; }

  // What is to be said of the markers of `document` that are written under one name: a text for
  // each such name, in the order of the first markers.
  std::vector<std::string> DescribeClashes(const orvane::TRCDocument& document) const;

 private:
  orvane::MarkerNameMap mapping_;
  const bool use_mapping_;
  std::optional<Complaint> flaw_;
};

}  // namespace cli
