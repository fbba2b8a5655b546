#pragma once

#include <cstdio>
#include <cstdlib>
#include <string_view>

// How a fuzz target says that a result is wrong.

namespace fuzz {

// Ends the process, which is a find, unless `holds`; `claim` is what should have held.
inline void Expect(bool holds, std::string_view claim) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %.*s\n", static_cast<int>(claim.size()), claim.data());
  std::abort();
}

}  // namespace fuzz
