#pragma once

#include <cstdint>
#include <string>

// Files of captures as no two programs write them: numbers in various spellings, lengths in any
// unit. The same of one seed each time.
namespace test {

// Which segments have translations that change over time.
enum class Moving { kRoot, kMany };

struct RandomMotionFile {
  std::string text;
  std::string rate;  // frames per second, which divide the ticks of a second
};

// Of a skeleton of 2 to 20 segments, each some 0.3 m long, whose root moves within 2.5 m of the
// origin along each axis, for 2 to 12 frames, numbered from 1; quarters of a turn among its angles.
[[nodiscard]] RandomMotionFile MakeRandomMotion(std::uint64_t seed, Moving moving);

// Of 1 to 12 markers and 1 to 12 frames, numbered from anywhere; gaps among them.
[[nodiscard]] std::string MakeRandomMarkers(std::uint64_t seed);

}  // namespace test
