#include "cli/common/json_writer.h"
#include "cli/common/report.h"
#include "cli/compare/comparison_report.h"

namespace cli {
namespace {

using orvane::DifferentParent;
using orvane::FrameNumbers;
using orvane::MotionComparison;
using orvane::MotionDifference;
using orvane::OnlyFrames;
using orvane::OnlySegment;
using orvane::Spread;
using orvane::StructureComparison;
using orvane::StructureDifferences;
using orvane::WhichFile;

using Layout = JsonWriter::Layout;

constexpr int kVersion = 2;

const char* Letter(WhichFile file) { return file == WhichFile::kA ? "a" : "b"; }

void WriteText(JsonWriter& json, const char* key, const std::string& text) {
  json.Key(key);
  json.String(text);
}

// A text that may be missing.
void WriteOptional(JsonWriter& json, const char* key, const std::string& text) {
  json.Key(key);
  if (text.empty()) return json.Null();
  json.String(text);
}

void WriteNumber(JsonWriter& json, const char* key, double number) {
  json.Key(key);
  json.Number(number);
}

void WriteInteger(JsonWriter& json, const char* key, std::int64_t number) {
  json.Key(key);
  json.Integer(number);
}

void WriteRange(JsonWriter& json, const FrameNumbers& range) {
  json.BeginArray(Layout::kOneLine);
  json.Integer(range.first);
  json.Integer(range.last);
  json.EndArray();
}

void WriteSpread(JsonWriter& json, const char* key, const Spread& spread,
                 const std::string* segment) {
  json.Key(key);
  if (spread.count == 0) return json.Null();
  json.BeginObject();
  WriteNumber(json, "largest", spread.largest);
  WriteInteger(json, "largest_frame", spread.largest_frame);
  if (segment != nullptr) WriteText(json, "largest_segment", *segment);
  WriteNumber(json, "mean", spread.Mean());
  json.EndObject();
}

void WriteFirstBeyond(JsonWriter& json, const MotionDifference& difference) {
  json.Key("first_beyond");
  if (!difference.first_beyond) return json.Null();
  json.Integer(*difference.first_beyond);
}

void WriteOverall(JsonWriter& json, const ComparisonReport& report) {
  const MotionComparison& motion = report.motion;
  const bool compared = motion.overall.position_mm.count > 0;
  const std::string position = compared ? report.NameOf(motion.position_pair) : "";
  const std::string orientation = compared ? report.NameOf(motion.orientation_pair) : "";
  WriteSpread(json, "position_mm", motion.overall.position_mm, &position);
  WriteSpread(json, "orientation_deg", motion.overall.orientation_deg, &orientation);
  WriteFirstBeyond(json, motion.overall);
  const bool is_beyond = motion.overall.first_beyond.has_value();
  WriteOptional(json, "first_beyond_segment", is_beyond ? report.NameOf(motion.beyond_pair) : "");
}

void WriteFrames(JsonWriter& json, const StructureComparison& structure) {
  json.Key("frames");
  if (structure.common_frames) {
    WriteRange(json, *structure.common_frames);
  } else {
    json.Null();
  }
  json.Key("base_position_only");
  json.Bool(structure.at_rest);
}

void WriteFrameRate(JsonWriter& json, const ComparisonReport& report) {
  json.Key("frame_rate");
  if (!report.structure.differences.frame_rate) return json.Null();
  json.BeginArray(Layout::kOneLine);
  json.Integer(report.a.GetDataFrameRate());
  json.Integer(report.b.GetDataFrameRate());
  json.EndArray();
}

void WriteStructure(JsonWriter& json, const ComparisonReport& report) {
  const StructureDifferences& differences = report.structure.differences;
  json.Key("structure");
  json.BeginObject();
  WriteFrameRate(json, report);
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
    WriteOptional(json, "parent_a", parent.in_a);
    WriteOptional(json, "parent_b", parent.in_b);
    json.EndObject();
  }
  json.EndArray();
  json.Key("frames");
  json.BeginArray(Layout::kLines);
  for (const OnlyFrames& only : differences.frames) {
    json.BeginObject();
    WriteOptional(json, "segment", only.segment);
    WriteText(json, "only_in", Letter(only.file));
    json.Key("range");
    WriteRange(json, only.frames);
    json.EndObject();
  }
  json.EndArray();
  json.EndObject();
}

void WriteSegments(JsonWriter& json, const ComparisonReport& report) {
  json.Key("segments");
  json.BeginArray(Layout::kLines);
  for (std::size_t pair = 0; pair < report.motion.segments.size(); ++pair) {
    const MotionDifference& difference = report.motion.segments[pair];
    json.BeginObject();
    WriteText(json, "name", report.NameOf(pair));
    WriteInteger(json, "frame_count", static_cast<std::int64_t>(difference.position_mm.count));
    WriteSpread(json, "position_mm", difference.position_mm, nullptr);
    WriteSpread(json, "orientation_deg", difference.orientation_deg, nullptr);
    WriteFirstBeyond(json, difference);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

void PrintComparisonJson(const ComparisonReport& report, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  WriteInteger(json, "version", kVersion);
  WriteText(json, "file_a", report.file_a);
  WriteText(json, "file_b", report.file_b);
  json.Key("same");
  json.Bool(report.SaysTheSame());
  WriteNumber(json, "tolerance_mm", report.tolerance.mm);
  WriteNumber(json, "tolerance_deg", report.tolerance.deg);
  WriteFrames(json, report.structure);
  WriteOverall(json, report);
  WriteStructure(json, report);
  WriteSegments(json, report);
  json.Key("findings_a");
  WriteFindings(json, report.findings_a);
  json.Key("findings_b");
  WriteFindings(json, report.findings_b);
  json.EndObject();
}

}  // namespace cli
