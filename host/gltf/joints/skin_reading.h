#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "host/scene/recording.h"

// How the skeletons of a file are taken, and what came of it: host/gltf/reader.h tells the rest.

namespace host::gltf {

// What is wished of a file that keeps no scene.
struct SkinOptions {
  // Frames per second; nothing for what the file tells. REQUIRES: it is from 1 to 4800.
  std::optional<Rate> rate;

  // The name of the animation; empty for the first one that moves a joint.
  std::string clip;
};

// Where the rate of the frames is from.
enum class RateSource {
  kWanted,     // SkinOptions
  kRecording,  // the extras that our own files have, or there is nothing that moves
  kKeys,       // all keys fall into frames of it
  kAssumed,    // nowhere: 30 a second are taken
};

// What came of a file, for those who are told.
struct SkinReading {
  bool is_skin = false;  // whether it kept no scene, and this is about its skeletons
  Rate rate;
  RateSource rate_source = RateSource::kKeys;
  std::size_t keys_between =
      0;             // times of keys that no frame is at, in the animation that has most
  std::string clip;  // the name of the animation; empty when nothing moves
  std::vector<std::string> other_clips;  // those that move joints, too
  std::vector<std::string> renamed;      // names of joints that bones have got others for
};

}  // namespace host::gltf
