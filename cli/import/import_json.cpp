#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/common/report.h"
#include "cli/import/import_summary.h"
#include "cli/import/key_counts.h"

namespace cli {
namespace {

using Layout = JsonWriter::Layout;

constexpr int kVersion = 2;

void WriteFrames(JsonWriter& json, std::string_view key, TimeValue first, TimeValue last,
                 int ticks_per_frame) {
  json.Key(key);
  json.BeginArray(Layout::kOneLine);
  json.Integer(first / ticks_per_frame);
  json.Integer(last / ticks_per_frame);
  json.EndArray();
}

void WriteKeys(JsonWriter& json, const ImportedFile& file, const host::Scene& scene) {
  const SceneKeys keys = KeysIn(scene);
  WriteCount(json, "keys_set", file.keys_set);
  WriteCount(json, "keys_in_scene", keys.count);
  if (keys.count > 0) {
    const int ticks_per_frame = scene.Animation().TicksPerFrame();
    return WriteFrames(json, "key_frames", keys.first, keys.last, ticks_per_frame);
  }
  json.Key("key_frames");
  json.Null();
}

void WriteTime(JsonWriter& json, const host::AnimationState& animation) {
  const Interval range = animation.Range();
  WriteFrames(json, "frames", range.Start(), range.End(), animation.TicksPerFrame());
  json.Key("frame_rate");
  json.Integer(animation.FrameRate());
}

void WriteSize(JsonWriter& json, const std::optional<double>& chosen_size) {
  json.Key("chosen_size_mm");
  if (chosen_size) {
    json.Number(*chosen_size);
  } else {
    json.Null();
  }
}

// Null where there are no samples, as of a motion file.
void WriteSamples(JsonWriter& json, const ImportedFile& file) {
  json.Key("samples");
  if (file.samples.all == 0) return json.Null();
  json.BeginObject();
  json.Key("all");
  json.Integer(file.samples.all);
  json.Key("missing");
  json.Integer(file.samples.missing);
  WriteText(json, "missing_are", NameOf(file.gaps));
  json.EndObject();
}

void WriteSceneFile(JsonWriter& json, const ImportedFile& file) {
  WriteText(json, "scene", file.output);
  json.Key("delivered");
  json.Bool(file.is_delivered);
  json.Key("plain");
  json.Bool(file.is_plain);
  json.Key("bytes");
  if (file.is_delivered) {
    json.Integer(static_cast<std::int64_t>(file.output_bytes));
  } else {
    json.Null();
  }
}

void WriteApplication(JsonWriter& json, const std::optional<Application>& application) {
  json.Key("applied");
  if (application) {
    WriteTable(json, *application);
  } else {
    json.Null();
  }
}

void WriteWarnings(JsonWriter& json, const std::vector<Complaint>& warnings) {
  json.Key("warnings");
  json.BeginArray(Layout::kLines);
  for (const Complaint& warning : warnings) json.String(warning.text);
  json.EndArray();
}

}  // namespace

void PrintImportJson(const ImportedFile& file, const host::Scene& scene, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  WriteCount(json, "version", kVersion);
  WriteText(json, "file", file.input);
  WriteCount(json, "nodes", scene.NodeCount());
  WriteKeys(json, file, scene);
  WriteTime(json, scene.Animation());
  WriteSamples(json, file);
  WriteSize(json, file.chosen_size);
  WriteSceneFile(json, file);
  WriteApplication(json, file.application);
  json.Key("findings");
  WriteFindings(json, file.report);
  WriteWarnings(json, file.warnings);
  json.EndObject();
}

}  // namespace cli
