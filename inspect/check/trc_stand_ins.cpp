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

bool AreEqual(const TRCPosition& left, const TRCPosition& right) {
  return left.x == right.x && left.y == right.y && left.z == right.z;
}

bool SeemsToStandIn(const PositionExtremes& extremes) {
  return extremes.times_at_farthest >= kFewestRepeats &&
         extremes.farthest > kTimesTheOthers * extremes.next_farthest &&
         extremes.next_farthest > 0.0 && FitsSinglePrecision(extremes.farthest);
}

std::string Named(const TRCMarker& marker) {
  return marker.Name().empty() ? "a marker without a name" : Quote(marker.Name());
}

std::string InSamples(std::size_t samples) { return CountOf(samples, "sample"); }

}  // namespace

PositionExtremes FindExtremes(const TRCMarker& marker) {
  PositionExtremes found;
  const auto positions = marker.Positions();
  for (std::size_t index = 0; index < positions.size(); ++index) {
    const TRCPosition& position = positions[index];
    const double distance = DistanceOf(position);
    if (distance == 0.0) {
      if (found.zeros++ == 0) found.first_zero = index;
    } else if (distance > found.farthest) {
      found.next_farthest = found.farthest;
      found.farthest = distance;
      found.first_farthest = index;
      found.times_at_farthest = 1;
    } else if (distance == found.farthest && AreEqual(position, positions[found.first_farthest])) {
      ++found.times_at_farthest;
    } else if (distance > found.next_farthest) {
      found.next_farthest = distance;
    }
  }
  return found;
}

std::size_t FrameOfPosition(const TRCMarker& marker, std::size_t index) {
  std::size_t frame = index;
  for (const TRCMarker::Gap& gap : marker.Gaps()) {
    if (gap.positions_before > index) break;
    frame += gap.end - gap.begin;
  }
  return frame;
}

StandIns::StandIns(const TRCDocument& document, const std::vector<PositionExtremes>& extremes)
    : document_(document), extremes_(extremes) {
  for (const PositionExtremes& each : extremes) {
    if (SeemsToStandIn(each)) distances_.insert(each.farthest);
  }
}

void StandIns::AddTo(FindingList& findings, const TrcParts& parts) const {
  AddZeros(findings, parts);
  AddFar(findings, parts);
}

bool StandIns::MovesAwayFromZero(std::size_t marker) const {
  return extremes_[marker].zeros > 0 && extremes_[marker].farthest > 0.0;
}

void StandIns::AddZeros(FindingList& findings, const TrcParts& parts) const {
  std::size_t samples = 0;
  for (std::size_t index = 0; index < extremes_.size(); ++index) {
    if (MovesAwayFromZero(index)) samples += extremes_[index].zeros;
  }
  if (samples < kFewestZeros) return;
  for (std::size_t index = 0; index < extremes_.size(); ++index) {
    if (!MovesAwayFromZero(index)) continue;
    const TRCMarker& marker = *document_.MarkerAt(index);
    const std::size_t frame = FrameOfPosition(marker, extremes_[index].first_zero);
    findings.Add(Rule("trc-position-zero"), parts.PlaceOfFrame(frame), [&] {
      return FindingWords{
          Named(marker) + " at 0 0 0 in " + CountOf(extremes_[index].zeros, "frame"), kEmptyCells,
          "It is taken for a position, and no gap is seen: " + InSamples(samples) + " in all."};
    });
  }
}

void StandIns::AddFar(FindingList& findings, const TrcParts& parts) const {
  std::size_t samples = 0;
  for (const PositionExtremes& each : extremes_) {
    if (AreAt(each.farthest)) samples += each.times_at_farthest;
  }
  for (std::size_t index = 0; index < extremes_.size(); ++index) {
    const PositionExtremes& found = extremes_[index];
    if (!AreAt(found.farthest)) continue;
    const TRCMarker& marker = *document_.MarkerAt(index);
    const std::size_t frame = FrameOfPosition(marker, found.first_farthest);
    findings.Add(Rule("trc-position-stand-in"), parts.PlaceOfFrame(frame), [&] {
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
