#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/compare/comparison_members.h"
#include "cli/compare/marker_report.h"

namespace cli {
namespace {

using orvane::ComparedMarker;
using orvane::FramesOfOne;
using orvane::MarkerComparison;
using orvane::MarkerDifference;
using orvane::OnlyMarker;

using Layout = JsonWriter::Layout;

void WriteGapCounts(JsonWriter& json, const MarkerDifference& difference) {
  WriteInteger(json, "only_in_a", static_cast<std::int64_t>(difference.only_in_a));
  WriteInteger(json, "only_in_b", static_cast<std::int64_t>(difference.only_in_b));
}

void WriteOverall(JsonWriter& json, const MarkerComparison& comparison) {
  const MarkerDifference& overall = comparison.overall;
  const bool is_compared = overall.distance_mm.count > 0;
  const std::string farthest = is_compared ? comparison.markers[comparison.farthest].name : "";
  WriteSpread(json, "distance_mm", overall.distance_mm, "largest_marker", &farthest);
  WriteGapCounts(json, overall);
  WriteFirstBeyond(json, overall.first_beyond);
  const bool is_beyond = overall.first_beyond.has_value();
  WriteTextOrNull(json, "first_beyond_marker",
                  is_beyond ? comparison.markers[comparison.beyond].name : "");
}

void WriteContents(JsonWriter& json, const MarkerReport& report) {
  const MarkerComparison& comparison = report.comparison;
  json.Key("structure");
  json.BeginObject();
  WriteFrameRates(json, comparison.frame_rate_differs, report.a.DataRate(), report.b.DataRate());
  json.Key("markers");
  json.BeginArray(Layout::kLines);
  for (const OnlyMarker& marker : comparison.only_markers) {
    json.BeginObject();
    WriteText(json, "name", marker.name);
    WriteText(json, "only_in", Letter(marker.file));
    json.EndObject();
  }
  json.EndArray();
  json.Key("frames");
  json.BeginArray(Layout::kLines);
  for (const FramesOfOne& only : comparison.only_frames) {
    json.BeginObject();
    WriteText(json, "only_in", Letter(only.file));
    json.Key("range");
    WriteRange(json, only.frames);
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
}

void WriteMarkers(JsonWriter& json, const MarkerComparison& comparison) {
  json.Key("markers");
  json.BeginArray(Layout::kLines);
  for (const ComparedMarker& marker : comparison.markers) {
    const MarkerDifference& difference = marker.difference;
    json.BeginObject();
    WriteText(json, "name", marker.name);
    WriteInteger(json, "sample_count", static_cast<std::int64_t>(difference.distance_mm.count));
    WriteSpread(json, "distance_mm", difference.distance_mm);
    WriteGapCounts(json, difference);
    WriteFirstBeyond(json, difference.first_beyond);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

void WriteComparison(JsonWriter& json, const MarkerReport& report) {
  json.BeginObject();
  WriteHead(json, report.file_a, report.file_b, report.SaysTheSame());
  WriteNumber(json, "tolerance_mm", report.tolerance_mm);
  WriteCommonFrames(json, report.comparison.frames);
  WriteOverall(json, report.comparison);
  WriteContents(json, report);
  WriteMarkers(json, report.comparison);
  WriteBothFindings(json, report.findings_a, report.findings_b);
  json.EndObject();
}

}  // namespace cli
