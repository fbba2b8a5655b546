#include "inspect/check/trc_stand_ins.h"

#include <string>

#include "formats/text/number_faults.h"
#include "formats/text/numbers.h"
#include "inspect/check/trc_rules.h"

namespace orvane::trc {
namespace {

// What was measured hardly repeats in all digits, and nobody jumps to twice the distance for it.
constexpr std::size_t kFewestRepeats = 3;
constexpr double kTimesTheOthers = 2.0;

// One may have been measured there.
constexpr std::size_t kFewestZeros = 2;

constexpr const char* kEmptyCells = "nothing for X where a position is missing";

bool SeemsToStandIn(const PositionExtremes& extremes) {
  return extremes.times_at_farthest >= kFewestRepeats &&
         extremes.farthest > kTimesTheOthers * extremes.next_farthest &&
         extremes.next_farthest > 0.0 && FitsSinglePrecision(extremes.farthest);
}

bool MovesAwayFromZero(const PositionExtremes& extremes) {
  return extremes.zeros > 0 && extremes.farthest > 0.0;
}

std::string Named(const TRCMarker& marker) {
  return marker.Name().empty() ? "a marker without a name" : Quote(marker.Name());
}

std::string InSamples(std::size_t samples) { return CountOf(samples, "sample"); }

}  // namespace

StandIns::StandIns(const TRCDocument& document, const std::vector<MarkerSamples>& samples)
    : document_(document), samples_(samples) {
  for (const MarkerSamples& marker : samples) {
    if (SeemsToStandIn(marker.extremes)) distances_.insert(marker.extremes.farthest);
  }
}

void StandIns::AddTo(FindingList& findings, const TrcParts& parts) const {
  AddZeros(findings, parts);
  AddFar(findings, parts);
}

void StandIns::AddZeros(FindingList& findings, const TrcParts& parts) const {
  std::size_t samples = 0;
  for (const MarkerSamples& each : samples_) {
    if (MovesAwayFromZero(each.extremes)) samples += each.extremes.zeros;
  }
  if (samples < kFewestZeros) return;
  for (std::size_t index = 0; index < samples_.size(); ++index) {
    const PositionExtremes& found = samples_[index].extremes;
    if (!MovesAwayFromZero(found)) continue;
    const TRCMarker& marker = *document_.MarkerAt(index);
    findings.Add(Rule("trc-position-zero"), parts.PlaceOfFrame(found.first_zero), [&] {
      return FindingWords{
          Named(marker) + " at 0 0 0 in " + CountOf(found.zeros, "frame"), kEmptyCells,
          "It is taken for a position, and no gap is seen: " + InSamples(samples) + " in all."};
    });
  }
}

void StandIns::AddFar(FindingList& findings, const TrcParts& parts) const {
  std::size_t samples = 0;
  for (const MarkerSamples& each : samples_) {
    if (AreAt(each.extremes.farthest)) samples += each.extremes.times_at_farthest;
  }
  for (std::size_t index = 0; index < samples_.size(); ++index) {
    const PositionExtremes& found = samples_[index].extremes;
    if (!AreAt(found.farthest)) continue;
    const TRCMarker& marker = *document_.MarkerAt(index);
    findings.Add(Rule("trc-position-stand-in"), parts.PlaceOfFrame(found.first_farthest), [&] {
      return FindingWords{Named(marker) + " at " + FormatShortest(found.farthest) + " in " +
                              CountOf(found.times_at_farthest, "frame"),
                          kEmptyCells,
                          FormatShortest(found.farthest) +
                              " seems to stand for a missing position; it is taken for one, and no "
                              "gap is seen: " +
                              InSamples(samples) + " in all."};
    });
  }
}

}  // namespace orvane::trc
