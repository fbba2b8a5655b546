#include "inspect/check/trc_positions.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "formats/text/numbers.h"
#include "inspect/check/plausibility.h"
#include "inspect/check/trc_rules.h"
#include "inspect/check/trc_stand_ins.h"

namespace orvane::trc {
namespace {

// Where a marker is that is beyond the horizon, but for positions that stand for missing ones.
void CheckFarPositions(const TRCMarker& marker, const MarkerSamples& samples, std::uint32_t unit,
                       const StandIns& stand_ins, const TrcParts& parts, FindingList& findings) {
  for (const auto& [frame, position] : samples.far) {
    if (stand_ins.AreAt(DistanceOf(position))) continue;
    const Point point{position.x, position.y, position.z};
    findings.Add(Rule("trc-position-far"), parts.PlaceOfFrame(frame),
                 [&] { return WordsOfOutOfSight(marker.Name(), point, unit); });
  }
}

// Around all positions, as far as that is along Z.
Bounds HeightsAlongZ(const std::vector<MarkerSamples>& markers) {
  MarkerSamples all;
  for (const MarkerSamples& marker : markers) {
    all.lowest_z = std::min(all.lowest_z, marker.lowest_z);
    all.highest_z = std::max(all.highest_z, marker.highest_z);
  }
  return {{0.0, 0.0, all.lowest_z}, {0.0, 0.0, all.highest_z}};
}

void CheckSubject(const TRCDocument& document, const std::vector<MarkerSamples>& markers,
                  const std::optional<Subject>& subject, const StandIns& stand_ins,
                  const TrcParts& parts, FindingList& findings) {
  const auto unit = static_cast<std::uint32_t>(document.Units());
  if (auto words = WordsOfOddSize(subject, unit); words && !stand_ins.AreFar()) {
    findings.Add(Rule("trc-size"), parts.Value(TRCHeaderValue::kUnits).value_or(parts.end),
                 std::move(*words));
  } else {
    for (std::size_t index = 0; index < markers.size(); ++index) {
      CheckFarPositions(*document.MarkerAt(index), markers[index], unit, stand_ins, parts,
                        findings);
    }
  }
  if (!subject || stand_ins.AreFar() || !SeemsToStandAlongZ(*subject)) return;
  findings.Add(Rule("trc-up-axis"), parts.PlaceOfFrame(0),
               {"heights along Z: " + DescribeHeights(HeightsAlongZ(markers), unit),
                "heights along Y", "The file is taken as Y up: what stands lies on its side."});
}

using NarrowFrame = std::pair<std::size_t, std::size_t>;  // its line, and how many fields it has

void AddNarrowFrame(std::size_t line, std::size_t fields, std::size_t usual,
                    FindingList& findings) {
  findings.Add(Rule("trc-frame-narrow"), FindingPlace{line, 1}, [&] {
    return FindingWords{
        CountOf(fields, "field"),
        FormatInt(static_cast<std::int64_t>(usual)) + ", as in most frames",
        "If a cell was lost, the values behind it go to other coordinates and markers."};
  });
}

}  // namespace

void CheckNarrowFrames(const TrcWidths& widths, std::int64_t markers, FindingList& findings) {
  const auto needed = static_cast<std::size_t>(2 + 3 * markers);
  std::vector<NarrowFrame> first;
  for (const TrcWidths::NarrowFrames& frames : widths.narrow) {
    if (frames.fields < needed) continue;  // which is told of as too short
    for (const std::size_t line : frames.first_lines) first.push_back({line, frames.fields});
  }
  std::sort(first.begin(), first.end());
  for (const NarrowFrame& frame : first) {
    AddNarrowFrame(frame.first, frame.second, widths.usual, findings);
  }
  for (const TrcWidths::NarrowFrames& frames : widths.narrow) {
    if (frames.fields < needed) continue;
    findings.AddMore(Rule("trc-frame-narrow"), FindingPlace{frames.first_lines.back(), 1},
                     frames.count - frames.first_lines.size());
  }
}

void CheckPositions(const TRCDocument& document, const std::vector<MarkerSamples>& markers,
                    const std::optional<Subject>& subject, const TrcParts& parts,
                    FindingList& findings) {
  const StandIns stand_ins(document, markers);
  stand_ins.AddTo(findings, parts);
  CheckSubject(document, markers, subject, stand_ins, parts, findings);
}

}  // namespace orvane::trc
