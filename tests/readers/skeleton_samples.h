#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "formats/bvh/writer.h"
#include "formats/pose/point.h"

// Motions whose BVH files other programs read, and where the joints have to be then.
namespace test {

struct SkeletonSample {
  std::string name;
  std::string bvh;  // the text of the file

  // Of the joints, depth first, as the file is to name them.
  std::vector<std::string> names;
  // By frame and joint: where the joint is in the world, and where a bone ends on which no other
  // hangs.
  std::vector<std::vector<orvane::Point>> positions;
  std::vector<std::vector<std::optional<orvane::Point>>> ends;

  double tolerance = 0.0;  // 1e-5 of the height
};

// Hands each to `take`, one after the other: our example, those of our fixtures of which there are
// files, odd names, none but a base position, and 200 random motions, whose angles are of all six
// orders; all of them with positions of the root alone and with positions of all.
void ForEachSkeletonSample(const std::function<void(const SkeletonSample&)>& take);

}  // namespace test
