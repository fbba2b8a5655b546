#pragma once

#include <string>

// Motion files to measure with: made in memory, the same at every run. Real recordings and small
// examples are elsewhere.
namespace bench {

// How the segments hang together: each has up to two children; each but the last has one; the first
// has all others.
enum class MotionShape { kTree, kChain, kFan };

// How much motion a file holds. The default makes a text of some 44 MB.
struct MotionSize {
  int segments = 60;
  int frames = 10'000;
  MotionShape shape = MotionShape::kTree;
};

// Returns the text of an HTR file: segments of that shape, and for each a smooth motion with six
// decimals, as recording systems write them.
std::string MakeMotionText(MotionSize size);

}  // namespace bench
