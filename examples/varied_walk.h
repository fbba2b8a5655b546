#pragma once

#include <cstdint>
#include <string>

#include "examples/marker_table_text.h"
#include "examples/skeleton.h"

// Walks of other bodies than the walker's, captured otherwise: for whoever wants to know whether
// something holds for more than one example.
namespace examples {

struct WalkVariation {
  std::uint64_t seed = 0;  // of all that is left to chance; the same seed makes the same walk

  Proportions proportions;
  double stature = 1;       // how many times as tall as the body would be
  double stride_mm = 1200;  // before that
  double first_phase =
      0.15;                // of the left leg: cycles from its heel strike; of the right, half more
  double heading_deg = 0;  // 0 is along Z, 90 along X
  double start_x_mm = 0;
  double start_z_mm = 0;
  int frames = 120;
  bool is_mirrored = false;  // left is right, as in a mirror
  bool is_backward = false;  // the body goes back the way that it would come

  double placement_mm = 0;  // how far from its place a marker is stuck, along each axis: the spread
  double noise_mm = 0;      // of each position, along each axis: the spread
  int missing = 0;          // markers of the set that the body does not carry
  int extra = 0;            // markers more, at other places of the body: at most ten
  int props = 0;            // markers on the floor that do not move
  double gaps = 0;          // the share of the frames in which a marker is not seen
  const char* unit = "mm";  // or "cm", "m"
};

// A table whose markers are named "M001" and so on, in an order that says nothing.
struct VariedWalk {
  MarkerTable table;
  std::vector<std::string> roles;  // of each marker the standard marker that it is; empty: none
};

VariedWalk MakeVariedWalk(const WalkVariation& variation);

// Another body on another way for each seed, with all that may vary varied.
WalkVariation VariationOf(std::uint64_t seed);

}  // namespace examples
