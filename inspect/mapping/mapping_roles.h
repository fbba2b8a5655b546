#pragma once

#include <string>
#include <string_view>
#include <vector>

// What a mapping says of the standard markers. It is read as the plug-in reads it. What is returned
// holds copies; nothing fails but for want of memory. May be called from any thread.

namespace orvane {

struct MappingRole {
  std::string standard;
  std::string description;  // as the mapping creator has it; empty for what is no standard marker
  bool is_needed = false;   // whether the mapping creator does not let it be skipped
  std::string marker;       // the name in the captures; empty when the mapping has none
};

// The standard markers that the mapping file `bytes` has entries for, and those that it lacks and
// that are needed, in the order in which the mapping creator asks for them; behind them its other
// entries, in its order. Of several entries for one marker the first one is there. A wrist carries
// a stick when an entry is for one of the stick's ends.
[[nodiscard]] std::vector<MappingRole> RolesIn(std::string_view bytes);

// The names of markers that its lines give, in their order.
[[nodiscard]] std::vector<std::string> MarkersIn(std::string_view bytes);

}  // namespace orvane
