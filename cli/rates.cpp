#include "cli/rates.h"

#include "formats/text/numbers.h"

namespace cli {

using orvane::FormatInt;

bool IsRate(std::int32_t frames_per_second) {
  return frames_per_second >= kLowestRate && frames_per_second <= kHighestRate;
}

std::string ExpectedRate() {
  return FormatInt(kLowestRate) + " to " + FormatInt(kHighestRate) + " frames per second";
}

std::string EffectOfCutRate(std::string_view cell) {
  const std::int32_t taken = orvane::ParseInt(cell);
  const std::string effect = FormatInt(taken) + " is taken";
  if (taken <= 0) return effect + ".";
  const double seconds = 60.0 * orvane::ParseDouble(cell) / taken;
  return effect + ": a minute lasts " + orvane::FormatDouble(seconds, 2) + " s.";
}

}  // namespace cli
