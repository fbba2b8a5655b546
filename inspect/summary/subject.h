#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "inspect/summary/bounds.h"

// Who or what moves in a file: how tall it is, how far it goes, and which axis its heights seem to
// lie along. Points are the joints of a skeleton or the markers of a capture, in the file's space
// and unit of length. Of a long file so many frames are looked at as tell it, spread over all of
// it: the time goes with the points and hardly with the frames. Nothing fails but for want of
// memory. May be called from any thread.

namespace orvane {

struct Subject {
  // How many points the fullest frames have. What follows is of these frames.
  std::size_t points = 0;

  Point extent{};        // along each axis: the one that half of the frames do not exceed
  Bounds bounds;         // around the points of all of them
  Point floor_change{};  // along each axis: by how much the lowest point of a frame rises and falls

  // How far from where it starts a point gets: the distance that half of the points do not exceed.
  // Where points come and go it is as far as their steps add up to, if that is more.
  double way = 0.0;
};

// Whether it seems to stand along Z, and not along Y. It goes by what a body on a floor does and a
// lying one hardly ever: along Z it is half as long again as along Y, and a fifth longer than along
// X; its lowest point stays near 0 along Z, and does not along Y. It needs eight points, so that a
// prop is no body. A body that stands still at Y = 0 cannot be told from a lying one, and is not.
[[nodiscard]] bool SeemsToStandAlongZ(const Subject& subject);

// The same the other way round: along Y, and not along Z.
[[nodiscard]] bool SeemsToStandAlongY(const Subject& subject);

// Along the axis that it seems to stand along.
[[nodiscard]] double HeightOf(const Subject& subject);

// "1.68 m tall, moves 3.1 m, 2.0 s", of a file whose lengths are in `length_unit` (formats/units)
// and that lasts so many seconds, where that is known.
[[nodiscard]] std::string DescribeSubject(const Subject& subject, std::uint32_t length_unit,
                                          const std::optional<double>& seconds);

// "48 to 1557 mm": the heights along Z, of such a file.
[[nodiscard]] std::string DescribeHeights(const Bounds& bounds, std::uint32_t length_unit);

// In meters.
[[nodiscard]] double InMeters(double length, std::uint32_t length_unit);

}  // namespace orvane
