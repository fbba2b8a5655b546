#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "inspect/check/checked_file.h"

// What is to be said of a glTF file of any maker, of which skeletons are taken, before one of them
// is exported. The findings have no place in a file. Nothing fails but for want of memory.

namespace orvane {

// What came of the file.
struct TakenSkins {
  double rate = 30.0;                         // frames per second that are taken
  int written_rate = 30;                      // what a motion file says of them
  bool is_rate_assumed = false;               // nobody has said the rate, nor do the keys
  std::size_t keys_between = 0;               // times of keys that no frame is at
  std::string animation;                      // the name of the one that is taken
  std::vector<std::string> other_animations;  // names of the others that move joints
  std::vector<std::string> renamed;           // names of joints that bones have got others for
};

// The findings of the codes "export-rate-...", "export-keys-...", "export-animation-..." and
// "export-joint-..." of the file known as `name`.
[[nodiscard]] CheckedFile CheckSkins(const std::string& name, const TakenSkins& taken);

}  // namespace orvane
