#pragma once

#include <cstdint>
#include <string>

// How much an import, a conversion or an export may make up. Whoever gets a frame that nothing is
// held for gets one all the same, so a few bytes can ask for any amount of work and memory. Texts
// are returned without a stop. Nothing fails but for want of memory.

namespace orvane {

// Frames that are wished for and lie behind all that a file holds, or outside the keys of a scene.
struct MadeUpFrames {
  std::int64_t frames = 0;
  const char* receiver = "";   // who gets each of them: a "segment", "marker" or "bone"
  std::int64_t receivers = 0;  // how many of these there are
  std::int64_t held = 0;       // frames that are there, those of each receiver added up
  std::int64_t deletions = 0;  // of keys, to clear one frame of one receiver
};

// Why that is out of proportion, with the number in question and the one that it exceeds; empty
// when it is not. A million frames of receivers may be made up, and ten times what is held; but no
// more than 500 million deletions may clear their place. REQUIRES: all numbers of `made_up` are 0
// or more.
[[nodiscard]] std::string WhyOutOfProportion(const MadeUpFrames& made_up);

// Why a hierarchy of `segments` that lists them `listed` times in all asks for too many bones;
// empty when it does not. One that is listed again doubles at every level: ten thousand bones more
// than there are segments may be made.
[[nodiscard]] std::string WhyListedTooOften(std::int64_t segments, std::int64_t listed);

// Why a marker file of `bytes` is far too short for `frames` of `markers`; empty when it is not. A
// line may lack most of its columns, and still make a sample of each. Five million of them may be
// made; beyond that the file has a byte for each.
[[nodiscard]] std::string WhyTooShort(std::int64_t bytes, std::int64_t frames,
                                      std::int64_t markers);

}  // namespace orvane
