#pragma once

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

#include "host/scene/node.h"

// How a part of the writer or the reader gives up: it throws, and the entry turns that into its
// result.

namespace host::gltf {

// Why a scene cannot be written or read, as a sentence for the user.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// How the sentence of such a Refusal ends.
inline constexpr char kIsNotFinite[] = " is not finite.";

// Throws a Refusal: `what` of `node`, at `time` (ticks), is not finite.
[[noreturn]] void RefuseNotFinite(const Node& node, const char* what, TimeValue time);

// The same of what does not change over time.
[[noreturn]] void RefuseNotFinite(const Node& node, const std::string& what);

template <typename Numbers>
bool AreFinite(const Numbers& numbers) {
  return std::all_of(std::begin(numbers), std::end(numbers),
                     [](auto number) { return std::isfinite(number); });
}

template <typename Numbers>
void RequireFinite(const Numbers& numbers, const Node& node, const char* what, TimeValue time) {
  if (!AreFinite(numbers)) RefuseNotFinite(node, what, time);
}

}  // namespace host::gltf
