#include "inspect/check/rates.h"

#include <algorithm>

#include "formats/text/numbers.h"

namespace orvane {

bool IsRate(std::int32_t frames_per_second) {
  return frames_per_second >= kLowestRate && frames_per_second <= kHighestRate;
}

FindingWords WordsOfRateOutOfRange(std::string_view cell) {
  return {Quote(cell),
          FormatInt(kLowestRate) + " to " + FormatInt(kHighestRate) + " frames per second",
          FormatInt(std::clamp(ParseInt(cell), kLowestRate, kHighestRate)) +
              " is set, unless --frame-rate keep is given."};
}

std::string EffectOfCutRate(std::string_view cell) {
  const std::int32_t taken = ParseInt(cell);
  const std::string effect = FormatInt(taken) + " is taken";
  if (taken <= 0) return effect + ".";
  const double seconds = 60.0 * ParseDouble(cell) / taken;
  return effect + ": a minute lasts " + FormatDouble(seconds, 2) + " s.";
}

}  // namespace orvane
