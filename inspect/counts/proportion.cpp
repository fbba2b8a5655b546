#include "inspect/counts/proportion.h"

#include <algorithm>
#include <cassert>
#include <limits>

#include "formats/text/numbers.h"

namespace orvane {
namespace {

constexpr std::int64_t kAlwaysAllowed = 1'000'000;
constexpr std::int64_t kTimesHeld = 10;
constexpr std::int64_t kMostDeletions = 500'000'000;
constexpr std::int64_t kMostBonesAgain = 10'000;
constexpr std::int64_t kSamplesAlwaysAllowed = 5'000'000;

// The largest number where the product is larger still.
std::int64_t Product(std::int64_t left, std::int64_t right) {
  constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
  return right != 0 && left > kLargest / right ? kLargest : left * right;
}

std::string Counted(std::int64_t count, const std::string& noun) {
  return FormatInt(count) + " " + noun + (count == 1 ? "" : "s");
}

std::string Of(std::int64_t frames, const MadeUpFrames& made_up) {
  return Counted(frames, "frame") + " of " + Counted(made_up.receivers, made_up.receiver);
}

}  // namespace

std::string WhyOutOfProportion(const MadeUpFrames& made_up) {
  assert(made_up.frames >= 0 && made_up.receivers >= 0);
  assert(made_up.held >= 0 && made_up.deletions >= 0);
  const std::int64_t frames = Product(made_up.frames, made_up.receivers);
  if (frames > std::max(kAlwaysAllowed, Product(kTimesHeld, made_up.held))) {
    return Of(frames, made_up) + " would be made up, and " + FormatInt(made_up.held) + " are held";
  }
  const std::int64_t deletions = Product(frames, made_up.deletions);
  if (deletions > kMostDeletions) {
    return FormatInt(deletions) + " deletions of keys would clear " + Of(made_up.frames, made_up) +
           ", and " + FormatInt(kMostDeletions) + " are the most";
  }
  return "";
}

std::string WhyListedTooOften(std::int64_t segments, std::int64_t listed) {
  if (listed - segments <= kMostBonesAgain) return "";
  return "The hierarchy would become " + FormatInt(listed) + " or more bones of " +
         FormatInt(segments) + " segments";
}

std::string WhyTooShort(std::int64_t bytes, std::int64_t frames, std::int64_t markers) {
  if (Product(frames, markers) <= std::max(kSamplesAlwaysAllowed, bytes)) return "";
  return "The file is far too short for " + Counted(frames, "frame") + " of " +
         Counted(markers, "marker");
}

}  // namespace orvane
