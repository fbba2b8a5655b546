#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "host/gltf/file/json_field.h"
#include "host/gltf/joints/joint_clip.h"
#include "host/gltf/joints/skin_reading.h"

// At which times the joints of a file are looked at: its keys have seconds, and a host has frames.

namespace host::gltf {

// Frames of a clip. The first is at its earliest key, and none is left out before the last.
struct FrameGrid {
  Rate rate;
  RateSource source = RateSource::kKeys;
  std::int32_t first_number = 1;
  std::size_t count = 1;
  double start = 0.0;            // seconds
  std::size_t keys_between = 0;  // times of keys that no frame is at

  [[nodiscard]] double Second(std::size_t frame) const {
    return start + static_cast<double>(frame) * static_cast<double>(rate.denominator) /
                       static_cast<double>(rate.numerator);
  }
};

// The frames of `clip`, which may be null, at the `wanted` rate; or else at the one that our own
// files tell of their recording, at the one that all keys fall into the frames of, or at 30 a
// second. Throws a Refusal when there are far too many of them for the keys.
[[nodiscard]] FrameGrid FrameGridOf(const JsonField& document, const JointClip* clip,
                                    const std::optional<Rate>& wanted);

}  // namespace host::gltf
