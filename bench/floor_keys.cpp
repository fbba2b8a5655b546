#include "bench/floor_keys.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>

#include "bench/floor_blocks.h"

namespace bench {
namespace {

constexpr int kTicksPerFrame = 160;

// Of angles in radians about x, y and z, the first applied first.
std::array<float, 4> RotationOf(const double* angles) {
  const double si = std::sin(angles[0] / 2);
  const double ci = std::cos(angles[0] / 2);
  const double sj = std::sin(angles[1] / 2);
  const double cj = std::cos(angles[1] / 2);
  const double sh = std::sin(angles[2] / 2);
  const double ch = std::cos(angles[2] / 2);
  return {static_cast<float>(si * cj * ch - ci * sj * sh),
          static_cast<float>(ci * sj * ch + si * cj * sh),
          static_cast<float>(ci * cj * sh - si * sj * ch),
          static_cast<float>(ci * cj * ch + si * sj * sh)};
}

void PutAngles(const std::array<float, 4>& rotation, double* angles) {
  const double x = rotation[0];
  const double y = rotation[1];
  const double z = rotation[2];
  const double w = rotation[3];
  angles[0] = std::atan2(2 * (w * x + y * z), 1 - 2 * (x * x + y * y));
  angles[1] = std::asin(std::clamp(2 * (w * y - z * x), -1.0, 1.0));
  angles[2] = std::atan2(2 * (w * z + x * y), 1 - 2 * (y * y + z * z));
}

template <typename Track>
void PutTrack(std::FILE* file, const Track& track) {
  std::fwrite(track.keys().data(), sizeof(typename Track::Key), track.keys().size(), file);
}

template <typename Track>
void TakeTrack(std::FILE* file, Track& track, std::size_t frames) {
  for (std::size_t frame = 0; frame < frames; ++frame) {
    typename Track::Key key;
    if (std::fread(&key, sizeof key, 1, file) != 1) std::exit(3);
    track.Append(key);
  }
}

}  // namespace

template <std::size_t kValues>
void FloorTrack<kValues>::DeleteAt(int tick) {
  if (keys_.empty() || keys_.back().tick < tick) return;
  const auto key = std::lower_bound(keys_.begin(), keys_.end(), tick,
                                    [](const Key& each, int wanted) { return each.tick < wanted; });
  if (key->tick == tick) keys_.erase(key);
}

template <std::size_t kValues>
void FloorTrack<kValues>::Append(const Key& key) {
  keys_.push_back(key);
}

template class FloorTrack<3>;
template class FloorTrack<4>;

std::vector<FloorBone> MakeKeys(const FloorMotion& motion) {
  std::vector<FloorBone> bones(motion.segments.size());
  auto bone = bones.begin();
  for (const FloorSegment& segment : motion.segments) {
    const int frames = static_cast<int>(segment.values.size() / kMotionValues);
    for (int tick = kTicksPerFrame; tick < (frames + 1) * kTicksPerFrame; ++tick) {
      bone->position.DeleteAt(tick);
      bone->rotation.DeleteAt(tick);
    }
    const double* value = segment.values.data();
    for (int frame = 1; frame <= frames; ++frame, value += kMotionValues) {
      bone->position.Append({frame * kTicksPerFrame,
                             {static_cast<float>(value[0]), static_cast<float>(value[1]),
                              static_cast<float>(value[2])}});
      bone->rotation.Append({frame * kTicksPerFrame, RotationOf(value + 3)});
    }
    bone->name = segment.name;
    ++bone;
  }
  return bones;
}

FloorMotion MotionOfKeys(const std::vector<FloorBone>& bones) {
  FloorMotion motion;
  for (const FloorBone& bone : bones) {
    motion.frames = bone.position.keys().size();
    FloorSegment& segment = motion.segments.emplace_back();
    segment.name = bone.name;
    segment.values.resize(kMotionValues * motion.frames);
    double* value = segment.values.data();
    for (std::size_t frame = 0; frame < motion.frames; ++frame, value += kMotionValues) {
      std::copy_n(bone.position.keys()[frame].values.begin(), 3, value);
      PutAngles(bone.rotation.keys()[frame].values, value + 3);
      value[6] = 1;
    }
  }
  return motion;
}

void WriteKeys(const std::vector<FloorBone>& bones, const std::string& path) {
  const File file = OpenFile(path, "wb");
  for (const FloorBone& bone : bones) {
    const std::uint64_t sizes[] = {bone.name.size(), bone.position.keys().size()};
    std::fwrite(sizes, sizeof sizes, 1, file.get());
    std::fwrite(bone.name.data(), 1, bone.name.size(), file.get());
    PutTrack(file.get(), bone.position);
    PutTrack(file.get(), bone.rotation);
  }
}

std::vector<FloorBone> ReadKeys(const std::string& path) {
  const File file = OpenFile(path, "rb");
  std::vector<FloorBone> bones;
  std::uint64_t sizes[2];
  while (std::fread(sizes, sizeof sizes, 1, file.get()) == 1) {
    FloorBone& bone = bones.emplace_back();
    bone.name.resize(sizes[0]);
    if (std::fread(bone.name.data(), 1, sizes[0], file.get()) != sizes[0]) std::exit(3);
    TakeTrack(file.get(), bone.position, sizes[1]);
    TakeTrack(file.get(), bone.rotation, sizes[1]);
  }
  return bones;
}

}  // namespace bench
