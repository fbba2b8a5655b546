#include "host/gltf/kept/kept_recording.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "host/gltf/kept/kept_fields.h"
#include "host/gltf/kept/kept_text.h"

namespace host::gltf {

namespace {

using nlohmann::json;

constexpr std::pair<GapManner, const char*> kManners[] = {
    {GapManner::kHide, "hide"},
    {GapManner::kHold, "hold"},
    {GapManner::kOrigin, "origin"},
};

const char* NameOf(GapManner manner) {
  return std::find_if(std::begin(kManners), std::end(kManners),
                      [&](const auto& entry) { return entry.first == manner; })
      ->second;
}

GapManner MannerIn(const JsonField& name) {
  const auto* manner = std::find_if(std::begin(kManners), std::end(kManners),
                                    [&](const auto& entry) { return entry.second == name.Text(); });
  if (manner == std::end(kManners)) name.Refuse("neither hide nor hold nor origin");
  return manner->first;
}

// First and last tick of one gap after the other: a list for each would take many times the memory.
json GapsRecord(const std::vector<Gap>& gaps) {
  json record = json::array();
  for (const Gap& gap : gaps) {
    record.push_back(gap.first);
    record.push_back(gap.last);
  }
  return record;
}

std::vector<Gap> GapsIn(const JsonField& ticks) {
  if (ticks.Size() % 2 != 0) ticks.Refuse("no list of pairs");
  std::vector<Gap> gaps;
  for (std::size_t i = 0; i < ticks.Size(); i += 2) {
    gaps.push_back({ticks.Element(i).Int(), ticks.Element(i + 1).Int()});
  }
  if (!AreInOrder(gaps)) ticks.Refuse("a list of gaps that are not in order");
  return gaps;
}

Rate RateIn(const JsonField& parts) {
  if (parts.Size() != 2) parts.Refuse("no pair of numbers");
  const Rate rate{parts.Element(0).Whole(1, kLargestInRate),
                  parts.Element(1).Whole(1, kLargestInRate)};
  if (!IsInLowestTerms(rate)) parts.Refuse("no fraction in lowest terms");
  return rate;
}

}  // namespace

json RecordingRecord(const Recording& recording) {
  json record = {{field::kFirstFrame, recording.first_frame},
                 {field::kTurnedUp, recording.turned_up}};
  if (recording.rate) {
    record[field::kRate] = {recording.rate->numerator, recording.rate->denominator};
  }
  SetText(record, field::kUnit, recording.unit);
  SetText(record, field::kSource, recording.source);
  return record;
}

Recording RecordingIn(const JsonField& record) {
  Recording recording;
  if (const auto rate = record.FindMember(field::kRate)) recording.rate = RateIn(*rate);
  recording.first_frame = record.Member(field::kFirstFrame).Int();
  recording.unit = TextOf(record, field::kUnit);
  recording.source = TextOf(record, field::kSource);
  recording.turned_up = record.Member(field::kTurnedUp).Bool();
  return recording;
}

json MeasurementRecord(const Measured& measured) {
  return {{field::kMadeByImport, measured.made_by_import},
          {field::kManner, NameOf(measured.manner)},
          {field::kGaps, GapsRecord(measured.gaps)}};
}

Measured MeasurementIn(const JsonField& record) {
  return {record.Member(field::kMadeByImport).Bool(), MannerIn(record.Member(field::kManner)),
          GapsIn(record.Member(field::kGaps))};
}

}  // namespace host::gltf
