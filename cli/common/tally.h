#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace cli {

// How many of many files something is so of.
struct TallyPart {
  std::size_t count;
  std::string singular;  // "has warnings"
  std::string plural;    // "have warnings"
};

// "4 of 6 files have warnings for import, 2 are clean": those of `parts` that there are, in their
// order, with `purpose` behind the first.
[[nodiscard]] std::string TallyOf(std::size_t files, const std::vector<TallyPart>& parts,
                                  const std::string& purpose = "");

}  // namespace cli
