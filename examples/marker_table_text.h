#pragma once

#include <optional>
#include <string>
#include <vector>

#include "examples/geometry.h"

namespace examples {

// The rates of all tables that are made here.
inline constexpr int kFramesPerSecond = 60;

// What a marker file holds.
struct MarkerTable {
  std::string file_name;
  std::string unit = "mm";
  int decimals = 3;  // of a position
  std::vector<std::string> names;
  // Of each frame the positions in `unit`, in the order of the names; nothing for a marker that was
  // not seen.
  std::vector<std::vector<std::optional<Vector3>>> frames;
};

// The whole of the file.
std::string TextOf(const MarkerTable& table);

}  // namespace examples
