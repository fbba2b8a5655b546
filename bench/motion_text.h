#pragma once

#include <string>

// Motion files to measure with: made in memory, the same at every run. Real recordings and small
// examples are elsewhere.
namespace bench {

// How much motion a file holds. The default makes a text of some 44 MB.
struct MotionSize {
  int segments = 60;
  int frames = 10'000;
};

// Returns the text of an HTR file: a tree of segments in which each has up to two children, and
// for each segment a smooth motion with six decimals, as recording systems write them.
std::string MakeMotionText(MotionSize size);

}  // namespace bench
