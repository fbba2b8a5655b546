#pragma once

#include <cstdint>

#include "platform/export.h"

// How many bytes a file takes at least, as far as that is plain before it is made. Keys are nearly
// all of a large file.

namespace host::gltf {

// Keys by what they hold.
struct KeyCounts {
  std::uint64_t vectors = 0;    // positions and scales
  std::uint64_t rotations = 0;  // Euler angles among them
  std::uint64_t angles = 0;     // Euler angles
};

// The bytes of a file that shows `shown` to viewers and keeps `kept`, but for the times of the keys
// and everything else: the file is larger.
SKELDER_API std::uint64_t LeastSize(const KeyCounts& shown, const KeyCounts& kept);

}  // namespace host::gltf
