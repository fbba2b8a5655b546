#include "cli/common/json_writer.h"
#include "cli/common/report.h"
#include "cli/info/info_report.h"
#include "cli/info/subject_json.h"
#include "formats/units/units.h"

namespace cli {
namespace {

using orvane::Bounds;
using orvane::HtrDocument;
using orvane::HtrSegment;
using orvane::MotionSummary;

using Layout = JsonWriter::Layout;

constexpr int kVersion = 2;

template <typename Triple>
void WriteTriple(JsonWriter& json, const Triple& triple) {
  json.BeginArray(Layout::kOneLine);
  for (unsigned i = 0; i < 3; ++i) json.Number(triple[i]);
  json.EndArray();
}

void WriteHeader(JsonWriter& json, const HtrDocument& document) {
  json.Key("length_unit");
  json.String(orvane::CalibrationUnitsName(document.GetCalibrationUnits()));
  json.Key("angle_unit_of_file");
  json.String(orvane::RotationUnitsName(document.GetRotationUnits()));
  json.Key("gravity_axis");
  json.String(orvane::AxisName(document.GetGlobalAxisofGravity()));
  json.Key("scale_factor");
  json.Number(document.GetScaleFactor());
  json.Key("frame_rate");
  json.Integer(document.GetDataFrameRate());
  json.Key("frames_announced");
  json.Integer(document.GetNumFrames());
}

void WriteBounds(JsonWriter& json, const std::optional<Bounds>& bounds) {
  json.Key("bounding_box");
  if (!bounds) return json.Null();
  json.BeginObject();
  json.Key("min");
  WriteTriple(json, bounds->least);
  json.Key("max");
  WriteTriple(json, bounds->most);
  json.EndObject();
}

void WriteMotion(JsonWriter& json, const HtrDocument& document, const MotionSummary& motion) {
  json.BeginObject();
  json.Key("frames_found_fewest");
  json.Integer(static_cast<std::int64_t>(motion.fewest_frames));
  json.Key("frames_found_most");
  json.Integer(static_cast<std::int64_t>(motion.most_frames));
  json.Key("first_frame");
  json.Integer(document.GetStartFrame());
  json.Key("length_seconds");
  if (motion.length_seconds) {
    json.Number(*motion.length_seconds);
  } else {
    json.Null();
  }
  WriteBounds(json, motion.bounds);
  WriteSubject(json, motion.subject, document.GetCalibrationUnits());
  json.EndObject();
}

void WriteFrames(JsonWriter& json, const HtrSegment& segment) {
  json.Key("frames");
  json.BeginArray(Layout::kLines);
  for (std::size_t frame = 0; frame < segment.GetNumFrames(); ++frame) {
    const orvane::Vector3 translation = segment.GetFrameTranslation(frame);
    const orvane::EulerRotation rotation = segment.GetFrameRotation(frame);
    json.BeginArray(Layout::kOneLine);
    for (unsigned i = 0; i < 3; ++i) json.Number(translation[i]);
    for (unsigned i = 0; i < 3; ++i) json.Number(rotation[i]);
    json.Number(segment.GetFrameScale(frame));
    json.EndArray();
  }
  json.EndArray();
}

void WriteSegment(JsonWriter& json, const HtrSegment& segment, bool with_frames) {
  json.BeginObject();
  json.Key("name");
  json.String(segment.GetName());
  json.Key("root");
  json.Bool(segment.GetIsRoot());
  json.Key("parent");
  if (segment.GetParent() != nullptr) {
    json.String(segment.GetParent()->GetName());
  } else {
    json.Null();
  }
  json.Key("length");
  json.Number(segment.GetBoneLength());
  json.Key("base_translation");
  WriteTriple(json, segment.GetBaseTranslation());
  json.Key("base_rotation_rad");
  WriteTriple(json, segment.GetBaseRotation());
  json.Key("frame_count");
  json.Integer(static_cast<std::int64_t>(segment.GetNumFrames()));
  if (with_frames) WriteFrames(json, segment);
  json.EndObject();
}

}  // namespace

void WriteInfo(JsonWriter& json, const InfoReport& report, bool with_frames) {
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  json.Key("file");
  json.String(report.file);
  json.Key("file_type");
  json.String("HTR");
  WriteHeader(json, report.document);
  json.Key("findings");
  WriteFindings(json, report.findings);
  json.Key("motion");
  if (report.motion) {
    WriteMotion(json, report.document, *report.motion);
  } else {
    json.Null();
  }
  json.Key("segments");
  json.BeginArray(Layout::kLines);
  for (const HtrSegment& segment : report.document.segments()) {
    WriteSegment(json, segment, with_frames);
  }
  json.EndArray();
  json.EndObject();
}

void BeginInfos(JsonWriter& json) {
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  json.Key("files");
  json.BeginArray(Layout::kLines);
}

void EndInfos(JsonWriter& json) {
  json.EndArray();
  json.EndObject();
}

}  // namespace cli
