#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

#include "bench/floor_motion.h"

namespace bench {

// Keys in rising order of their ticks, called as a scene's controllers are.
template <std::size_t kValues>
class FloorTrack {
 public:
  struct Key {
    int tick;
    std::array<float, kValues> values;
  };

  virtual ~FloorTrack() = default;
  virtual void DeleteAt(int tick);
  virtual void Append(const Key& key);

  const std::vector<Key>& keys() const { return keys_; }

 private:
  std::vector<Key> keys_;
};

struct FloorBone {
  std::string name;
  FloorTrack<3> position;
  FloorTrack<4> rotation;  // x, y, z, w
};

// A key of position and rotation for each frame, of 160 ticks; ahead of that, whatever key is at
// any of the ticks is deleted.
std::vector<FloorBone> MakeKeys(const FloorMotion& motion);

// The motion of such keys.
FloorMotion MotionOfKeys(const std::vector<FloorBone>& bones);

// Keeps keys in a file, and takes them from there.
void WriteKeys(const std::vector<FloorBone>& bones, const std::string& path);
std::vector<FloorBone> ReadKeys(const std::string& path);

}  // namespace bench
