#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "formats/trc/read_observer.h"
#include "inspect/check/findings.h"

// The columns that the line of names in a TRC file asks for. Whether one counts may depend on the
// values that frames have there, which come later. Fields count from 1; nothing fails but for want
// of memory.

namespace orvane::trc {

class TrcColumns {
 public:
  // Adds the column of a marker.
  void AddMarker(TRCPlace place, std::string_view name);

  // Adds a column without a marker, which counts when there are values from `field` on.
  void AddWithoutMarker(std::size_t field) { fields_without_name_.push_back(field); }

  // Adds a name that is there already.
  void AddRepeated(TRCPlace place, std::string_view name);

  // Takes back the names that were repeated on line `line`.
  void ForgetRepeated(std::size_t line) {
    std::erase_if(repeated_, [line](const Repeated& name) { return name.place.line == line; });
  }

  // The last field of the last column that has a name or, with values up to field `last_value`, a
  // value; 0 without any.
  [[nodiscard]] std::size_t NamedFields(std::size_t last_value) const;

  // Adds what is told of repeated names when there are values up to field `last_value`.
  void AddRepeatedTo(FindingList& findings, std::size_t last_value) const;

 private:
  struct Repeated {
    TRCPlace place;
    std::string name;
    std::size_t first_column = 0;  // where the name stands before, in bytes
  };

  std::unordered_map<std::string, std::size_t> columns_;  // of markers, by name
  std::vector<Repeated> repeated_;
  std::size_t last_named_ = 0;  // the first field of that column; 0 for none
  std::vector<std::size_t> fields_without_name_;
};

}  // namespace orvane::trc
