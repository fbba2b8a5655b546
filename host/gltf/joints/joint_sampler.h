#pragma once

#include "host/gltf/joints/joint_clip.h"

// What keys make of the time between them, as the format has it.

namespace host::gltf {

// How far from `second` a key may lie that is meant for it: programs keep times in single
// precision, and add up frames.
[[nodiscard]] double SecondsOff(double second);

// What the keys of `track` have at `second`: the value of a key that is meant for it, and what lies
// between the two around it. The first and the last value hold on both sides.
[[nodiscard]] Triple VectorAt(const KeyTrack& track, double second);

// The same of turns, of any length but 0 where keys have it.
[[nodiscard]] Turn TurnAt(const KeyTrack& track, double second);

}  // namespace host::gltf
