#pragma once

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "host/scene/node.h"

// How a part of the writer gives up: it throws, and the writer's entry turns that into its result.

namespace host::gltf {

// Why a scene cannot be written, as a sentence for the user.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Throws a Refusal: `what` of `node`, at `time` (ticks), is not finite.
[[noreturn]] void RefuseNotFinite(const Node& node, const char* what, TimeValue time);

template <typename Numbers>
void RequireFinite(const Numbers& numbers, const Node& node, const char* what, TimeValue time) {
  const bool finite = std::all_of(std::begin(numbers), std::end(numbers),
                                  [](auto number) { return std::isfinite(number); });
  if (!finite) RefuseNotFinite(node, what, time);
}

}  // namespace host::gltf
