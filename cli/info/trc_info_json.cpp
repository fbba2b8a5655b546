#include "cli/common/json_writer.h"
#include "cli/common/report.h"
#include "cli/info/subject_json.h"
#include "cli/info/trc_info.h"
#include "formats/units/units.h"

namespace cli {
namespace {

using orvane::Bounds;
using orvane::Coverage;
using orvane::TrcMarkerSummary;

using Layout = JsonWriter::Layout;

constexpr int kVersion = 2;

void WritePoint(JsonWriter& json, const orvane::Point& point) {
  json.BeginArray(Layout::kOneLine);
  for (const double coordinate : point) json.Number(coordinate);
  json.EndArray();
}

// A rate, and how the file has it when that says more.
void WriteRate(JsonWriter& json, const std::string& key, std::int32_t rate,
               const std::string& text) {
  json.Key(key);
  json.Integer(rate);
  json.Key(key + "_in_file");
  if (text.empty()) {
    json.Null();
  } else {
    json.String(text);
  }
}

void WriteHeader(JsonWriter& json, const TrcInfoReport& report) {
  const orvane::TRCDocument& document = report.document;
  json.Key("length_unit");
  json.String(orvane::CalibrationUnitsName(static_cast<std::uint32_t>(document.Units())));
  WriteRate(json, "data_rate", document.DataRate(), report.data_rate_text);
  WriteRate(json, "camera_rate", document.CameraRate(), report.camera_rate_text);
  json.Key("frames_announced");
  json.Integer(document.NumFrames());
  json.Key("frames_found");
  json.Integer(static_cast<std::int64_t>(report.summary.frames));
  json.Key("first_frame");
  json.Integer(document.FirstFrame());
  json.Key("length_seconds");
  if (report.summary.length_seconds) {
    json.Number(*report.summary.length_seconds);
  } else {
    json.Null();
  }
}

void WriteBounds(JsonWriter& json, const std::optional<Bounds>& bounds) {
  json.Key("bounding_box");
  if (!bounds) return json.Null();
  json.BeginObject();
  json.Key("min");
  WritePoint(json, bounds->least);
  json.Key("max");
  WritePoint(json, bounds->most);
  json.EndObject();
}

// A position for each frame, null for a dropout.
void WriteFrames(JsonWriter& json, const orvane::TRCMarker& marker) {
  json.Key("frames");
  json.BeginArray(Layout::kLines);
  for (std::size_t frame = 0; frame < marker.SampleCount(); ++frame) {
    orvane::Point point{};
    if (marker.GetSample(frame, point[0], point[1], point[2])) {
      WritePoint(json, point);
    } else {
      json.Null();
    }
  }
  json.EndArray();
}

// The first and the last frame of each.
void WriteGaps(JsonWriter& json, const TrcMarkerSummary& marker, std::int64_t first_frame) {
  json.Key("gaps");
  json.BeginArray(Layout::kOneLine);
  for (const orvane::TRCMarker::Gap& gap : marker.gaps) {
    json.BeginArray(Layout::kOneLine);
    json.Integer(first_frame + static_cast<std::int64_t>(gap.begin));
    json.Integer(first_frame + static_cast<std::int64_t>(gap.end) - 1);
    json.EndArray();
  }
  json.EndArray();
}

void WriteMarkers(JsonWriter& json, const TrcInfoReport& report, bool with_frames) {
  json.Key("markers");
  json.BeginArray(Layout::kLines);
  for (std::size_t index = 0; index < report.summary.markers.size(); ++index) {
    const orvane::TRCMarker& marker = *report.document.MarkerAt(index);
    const TrcMarkerSummary& summary = report.summary.markers[index];
    json.BeginObject();
    json.Key("name");
    json.String(marker.Name());
    json.Key("samples_present");
    json.Integer(static_cast<std::int64_t>(summary.present));
    json.Key("coverage");
    json.Number(Coverage(summary, report.summary.frames));
    json.Key("longest_gap");
    json.Integer(static_cast<std::int64_t>(summary.longest_gap));
    WriteGaps(json, summary, report.document.FirstFrame());
    if (with_frames) WriteFrames(json, marker);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

void WriteInfo(JsonWriter& json, const TrcInfoReport& report, bool with_frames) {
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  json.Key("file");
  json.String(report.file);
  json.Key("file_type");
  json.String("TRC");
  WriteHeader(json, report);
  json.Key("findings");
  WriteFindings(json, report.findings);
  WriteBounds(json, report.summary.bounds);
  WriteSubject(json, report.subject, static_cast<std::uint32_t>(report.document.Units()));
  WriteMarkers(json, report, with_frames);
  json.EndObject();
}

}  // namespace cli
