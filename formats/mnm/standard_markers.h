#pragma once

#include <array>
#include <cstddef>
#include <string_view>

// The markers that marker files for the character animation may hold, in the order in which the
// mapping creator asks for them. Nothing fails. May be called from any thread.
namespace orvane {

struct StandardMarker {
  std::string_view name;         // empty when there is none
  std::string_view description;  // what the user reads
};

// One question of the mapping creator: for one marker, or for two, one after the other.
struct MarkerStep {
  std::array<StandardMarker, 2> markers;
  bool may_be_skipped;

  std::size_t Count() const { return markers[1].name.empty() ? 1 : 2; }
};

inline constexpr std::size_t kMarkerSteps = 43;

// The steps whose markers depend on whether a wrist carries a stick.
inline constexpr std::size_t kLeftWristStep = 10;
inline constexpr std::size_t kRightWristStep = 15;

// The two answers that the user gives first.
struct WristSticks {
  bool left = false;
  bool right = false;
};

// Step `index`, 0 to kMarkerSteps - 1. The texts live for ever and end with a NUL.
const MarkerStep& MarkerStepAt(std::size_t index, const WristSticks& sticks);

// Whether a step asks for `name`, with or without sticks.
[[nodiscard]] bool IsStandardMarker(std::string_view name);

// The standard name of the marker that the creator asks for with `description`, of a wrist with a
// stick or without one; empty when it asks for none with it.
[[nodiscard]] std::string_view StandardNameOf(std::string_view description);

}  // namespace orvane
