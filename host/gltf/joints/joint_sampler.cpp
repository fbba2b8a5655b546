#include "host/gltf/joints/joint_sampler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "host/base/quaternion.h"

namespace host::gltf {

namespace {

// A time among the keys of a track.
struct KeyPlace {
  std::size_t before = 0;
  std::size_t after = 0;  // the same one where a key holds
  double fraction = 0.0;  // of the way to it
  double seconds = 0.0;   // from one to the other
};

// The first key that is not earlier than `second`, or the number of keys.
std::size_t KeyNotBefore(const FileNumbers& seconds, double second) {
  std::size_t first = 0;
  std::size_t count = seconds.Size();
  while (count > 0) {
    const std::size_t half = count / 2;
    if (seconds.At(first + half, 0) < second) {
      first += half + 1;
      count -= half + 1;
    } else {
      count = half;
    }
  }
  return first;
}

KeyPlace PlaceOf(const FileNumbers& seconds, double second) {
  const std::size_t last = seconds.Size() - 1;
  const std::size_t after = KeyNotBefore(seconds, second);
  if (after > last) return {last, last};
  const double off = SecondsOff(second);
  if (after == 0 || seconds.At(after, 0) - second <= off) return {after, after};
  const double from = seconds.At(after - 1, 0);
  if (second - from <= off) return {after - 1, after - 1};
  const double way = seconds.At(after, 0) - from;
  return {after - 1, after, (second - from) / way, way};
}

template <std::size_t kSize>
std::array<double, kSize> Weighted(const std::array<double, kSize>& left, double left_weight,
                                   const std::array<double, kSize>& right, double right_weight) {
  std::array<double, kSize> sum;
  for (std::size_t i = 0; i < kSize; ++i) sum[i] = left[i] * left_weight + right[i] * right_weight;
  return sum;
}

// Each key has its tangent from before, its value and its tangent to behind.
template <std::size_t kSize>
std::array<double, kSize> CubicAt(const FileNumbers& values, const KeyPlace& place) {
  const auto start = values.Element<kSize>(place.before * 3 + 1);
  if (place.before == place.after) return start;
  const auto leaving = values.Element<kSize>(place.before * 3 + 2);
  const auto arriving = values.Element<kSize>(place.after * 3);
  const auto end = values.Element<kSize>(place.after * 3 + 1);
  const double t = place.fraction;
  const double t2 = t * t;
  const double t3 = t2 * t;
  const auto keys = Weighted(start, 2 * t3 - 3 * t2 + 1, end, 3 * t2 - 2 * t3);
  const auto tangents =
      Weighted(leaving, (t3 - 2 * t2 + t) * place.seconds, arriving, (t3 - t2) * place.seconds);
  return Weighted(keys, 1.0, tangents, 1.0);
}

Quaternion QuaternionOf(const Turn& turn) {
  return Normalized({turn[0], turn[1], turn[2], turn[3]});
}

}  // namespace

double SecondsOff(double second) {
  constexpr double kSlack = 1e-6;
  constexpr double kRounding = 2.0 * std::numeric_limits<float>::epsilon();
  return std::max(kSlack, std::abs(second) * kRounding);
}

Triple VectorAt(const KeyTrack& track, double second) {
  const KeyPlace place = PlaceOf(track.seconds, second);
  if (track.join == KeyJoin::kCubic) return CubicAt<3>(track.values, place);
  const Triple start = track.values.Element<3>(place.before);
  if (track.join == KeyJoin::kStep || place.before == place.after) return start;
  return Weighted(start, 1.0 - place.fraction, track.values.Element<3>(place.after),
                  place.fraction);
}

Turn TurnAt(const KeyTrack& track, double second) {
  const KeyPlace place = PlaceOf(track.seconds, second);
  if (track.join == KeyJoin::kCubic) return CubicAt<4>(track.values, place);
  const Turn start = track.values.Element<4>(place.before);
  if (track.join == KeyJoin::kStep || place.before == place.after) return start;
  const Quaternion from = QuaternionOf(start);
  const Quaternion to = NearerSign(QuaternionOf(track.values.Element<4>(place.after)), from);
  const Quaternion between = Slerp(from, to, place.fraction);
  return {between.x, between.y, between.z, between.w};
}

}  // namespace host::gltf
