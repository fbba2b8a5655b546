#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "formats/text/lines.h"
#include "web/core/take.h"

// What the reader takes for whose, at places of a take's file. Lines and columns count from 1,
// columns in bytes.

namespace web {

// What a place is read as, where that is something: an object, a frame, or both.
struct PlaceInTake {
  std::optional<std::size_t> object{};
  std::optional<std::size_t> frame{};
};

// That of each of `places`, in their order; a line of 0 is no place. Reads the file anew, up to the
// last of them. Throws a Refusal when it cannot be opened.
[[nodiscard]] std::vector<PlaceInTake> FindPlaces(const Take& take, const Contents& contents,
                                                  const std::vector<orvane::LinePlace>& places);

}  // namespace web
