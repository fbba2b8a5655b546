#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/compare/comparison_members.h"
#include "cli/compare/motion_report.h"

namespace cli {
namespace {

using orvane::DifferentParent;
using orvane::MotionComparison;
using orvane::MotionDifference;
using orvane::OnlyFrames;
using orvane::OnlySegment;
using orvane::StructureComparison;
using orvane::StructureDifferences;

using Layout = JsonWriter::Layout;

void WriteOverall(JsonWriter& json, const MotionReport& report) {
  const MotionComparison& motion = report.motion;
  const bool compared = motion.overall.position_mm.count > 0;
  const std::string position = compared ? report.NameOf(motion.position_pair) : "";
  const std::string orientation = compared ? report.NameOf(motion.orientation_pair) : "";
  WriteSpread(json, "position_mm", motion.overall.position_mm, "largest_segment", &position);
  WriteSpread(json, "orientation_deg", motion.overall.orientation_deg, "largest_segment",
              &orientation);
  WriteFirstBeyond(json, motion.overall.first_beyond);
  const bool is_beyond = motion.overall.first_beyond.has_value();
  WriteTextOrNull(json, "first_beyond_segment", is_beyond ? report.NameOf(motion.beyond_pair) : "");
}

void WriteFrames(JsonWriter& json, const StructureComparison& structure) {
  WriteCommonFrames(json, structure.common_frames);
  json.Key("base_position_only");
  json.Bool(structure.at_rest);
}

void WriteStructure(JsonWriter& json, const MotionReport& report) {
  const StructureDifferences& differences = report.structure.differences;
  json.Key("structure");
  json.BeginObject();
  WriteFrameRates(json, differences.frame_rate, report.a.GetDataFrameRate(),
                  report.b.GetDataFrameRate());
  json.Key("segments");
  json.BeginArray(Layout::kLines);
  for (const OnlySegment& segment : differences.segments) {
    json.BeginObject();
    WriteText(json, "name", segment.name);
    WriteText(json, "only_in", Letter(segment.file));
    json.EndObject();
  }
  json.EndArray();
  json.Key("parents");
  json.BeginArray(Layout::kLines);
  for (const DifferentParent& parent : differences.parents) {
    json.BeginObject();
    WriteText(json, "name", parent.name);
    WriteTextOrNull(json, "parent_a", parent.in_a);
    WriteTextOrNull(json, "parent_b", parent.in_b);
    json.EndObject();
  }
  json.EndArray();
  json.Key("frames");
  json.BeginArray(Layout::kLines);
  for (const OnlyFrames& only : differences.frames) {
    json.BeginObject();
    WriteTextOrNull(json, "segment", only.segment);
    WriteText(json, "only_in", Letter(only.file));
    json.Key("range");
    WriteRange(json, only.frames);
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
}

void WriteSegments(JsonWriter& json, const MotionReport& report) {
  json.Key("segments");
  json.BeginArray(Layout::kLines);
  for (std::size_t pair = 0; pair < report.motion.segments.size(); ++pair) {
    const MotionDifference& difference = report.motion.segments[pair];
    json.BeginObject();
    WriteText(json, "name", report.NameOf(pair));
    WriteInteger(json, "frame_count", static_cast<std::int64_t>(difference.position_mm.count));
    WriteSpread(json, "position_mm", difference.position_mm);
    WriteSpread(json, "orientation_deg", difference.orientation_deg);
    WriteFirstBeyond(json, difference.first_beyond);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

void WriteComparison(JsonWriter& json, const MotionReport& report) {
  json.BeginObject();
  WriteHead(json, report.file_a, report.file_b, report.SaysTheSame());
  WriteNumber(json, "tolerance_mm", report.tolerance.mm);
  WriteNumber(json, "tolerance_deg", report.tolerance.deg);
  WriteFrames(json, report.structure);
  WriteOverall(json, report);
  WriteStructure(json, report);
  WriteSegments(json, report);
  WriteBothFindings(json, report.findings_a, report.findings_b);
  json.EndObject();
}

}  // namespace cli
