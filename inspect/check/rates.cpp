#include "inspect/check/rates.h"

#include <algorithm>
#include <cmath>

#include "formats/text/numbers.h"

namespace orvane {

namespace {

// The frames that the host plays in a second.
double RateInHost(std::int32_t frames_per_second) {
  const std::int32_t ticks =
      kHighestRate / std::clamp(frames_per_second, kLowestRate, kHighestRate);
  return static_cast<double>(kHighestRate) / ticks;
}

}  // namespace

std::string TellApart(double value, double other) {
  constexpr int kMostDecimals = 6;
  if (value == std::floor(value)) return FormatDouble(value, 0);
  for (int decimals = 1; decimals < kMostDecimals; ++decimals) {
    std::string text = FormatDouble(value, decimals);
    if (text != FormatDouble(other, decimals)) return text;
  }
  return FormatDouble(value, kMostDecimals);
}

bool IsRate(std::int32_t frames_per_second) {
  return frames_per_second >= kLowestRate && frames_per_second <= kHighestRate;
}

FindingWords WordsOfRateOutOfRange(std::string_view cell) {
  return {Quote(cell),
          FormatInt(kLowestRate) + " to " + FormatInt(kHighestRate) + " frames per second",
          FormatInt(std::clamp(ParseInt(cell), kLowestRate, kHighestRate)) +
              " is set, unless --frame-rate keep is given."};
}

bool LastsWholeTicks(std::int32_t frames_per_second) {
  return kHighestRate % frames_per_second == 0;
}

FindingWords WordsOfInexactRate(std::string_view cell) {
  const std::string effect = EffectOfRateInHost(cell);
  return {.found = Quote(cell),
          .expected = "a rate that goes into 4800 without a rest, such as 240",
          .effect = effect,
          .in_scene = effect};
}

std::string EffectOfRateInHost(std::string_view cell) {
  constexpr double kMinute = 60.0;
  const double rate = ParseDouble(cell);
  const double in_host = RateInHost(ParseInt(cell));
  return FormatShortest(rate) + " a second become " + TellApart(in_host, rate) +
         " in the host: a minute lasts " + TellApart(kMinute * rate / in_host, kMinute) +
         " s there.";
}

std::string EffectOfCutRate(std::string_view cell) {
  const std::int32_t taken = ParseInt(cell);
  const std::string effect = FormatInt(taken) + " is taken";
  if (taken <= 0) return effect + ".";
  const double seconds = 60.0 * ParseDouble(cell) / taken;
  return effect + ": a minute lasts " + FormatDouble(seconds, 2) + " s.";
}

}  // namespace orvane
