#pragma once

#include <array>
#include <optional>

// Where something is, in the space of glTF and in double precision.

namespace host::gltf {

using Triple = std::array<double, 3>;

// The images of the three axes, and that of the origin: column vectors.
struct Transform {
  std::array<Triple, 3> axes = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}};
  Triple origin = {0, 0, 0};
};

// Applies `second` first.
[[nodiscard]] Transform Product(const Transform& first, const Transform& second);

// Nothing when there is none, or numbers are too large for it.
[[nodiscard]] std::optional<Transform> Inverse(const Transform& transform);

// A transform that turns, moves and makes larger or smaller, alike in all directions. The axes of
// `turn` are of unit length and at right angles, and its origin is where the transform moves to.
struct Placement {
  Transform turn;
  double scale = 1.0;
};

// `transform` as that; nothing when it is uneven, sheared or mirrored by more than one part in a
// thousand: what programs save in single precision is never exact.
[[nodiscard]] std::optional<Placement> PlacementOf(const Transform& transform);

// Whether one is the other, as far as that.
[[nodiscard]] bool IsSameScale(double left, double right);

// The inverse of one that only turns and moves.
[[nodiscard]] Transform Undone(const Transform& turn);

// By how much the axes of two turns differ: 0 for those of the same turn, and more the farther they
// are apart.
[[nodiscard]] double AxesApart(const Transform& left, const Transform& right);

}  // namespace host::gltf
