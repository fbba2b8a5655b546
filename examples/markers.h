#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "examples/gait.h"

// The markers on the walker's body, as an optical system would see them.
namespace examples {

struct Marker {
  std::string_view standard_name;   // the role it plays, such as "LFHD"; empty: none
  std::string_view capture_name;    // as marker files call it
  BoneId bone;                      // that carries it
  Vector3 rest_mm;                  // where it is at rest, in file space
  std::optional<BoneId> hidden_by;  // the bone that it drops out behind, when that passes it
};

// In the order of the marker file's columns.
const std::vector<Marker>& Markers();

// Where `marker` is in file space; nothing while it is hidden. `bones` are those of the body that
// is in `pose`, and that the marker's place at rest is of.
std::optional<Vector3> PositionOf(const Marker& marker, const Pose& pose,
                                  const std::vector<Bone>& bones = Skeleton());

}  // namespace examples
