#include "cli/compare/comparison_members.h"

#include "cli/common/json_members.h"
#include "cli/common/report.h"

namespace cli {

using orvane::FrameSpan;
using orvane::Spread;
using orvane::WhichFile;

const char* Letter(WhichFile file) { return file == WhichFile::kA ? "a" : "b"; }

void WriteHead(JsonWriter& json, const std::string& file_a, const std::string& file_b, bool same) {
  WriteInteger(json, "version", kComparisonVersion);
  WriteText(json, "file_a", file_a);
  WriteText(json, "file_b", file_b);
  json.Key("same");
  json.Bool(same);
}

void WriteBothFindings(JsonWriter& json, const orvane::FileReport& findings_a,
                       const orvane::FileReport& findings_b) {
  json.Key("findings_a");
  WriteFindings(json, findings_a);
  json.Key("findings_b");
  WriteFindings(json, findings_b);
}

void WriteRange(JsonWriter& json, const FrameSpan& range) {
  json.BeginArray(JsonWriter::Layout::kOneLine);
  json.Integer(range.first);
  json.Integer(range.last);
  json.EndArray();
}

void WriteCommonFrames(JsonWriter& json, const std::optional<FrameSpan>& frames) {
  json.Key("frames");
  if (!frames) return json.Null();
  WriteRange(json, *frames);
}

void WriteSpread(JsonWriter& json, const char* key, const Spread& spread, const char* name_key,
                 const std::string* name) {
  json.Key(key);
  if (spread.count == 0) return json.Null();
  json.BeginObject();
  WriteNumber(json, "largest", spread.largest);
  WriteInteger(json, "largest_frame", spread.largest_frame);
  if (name != nullptr) WriteText(json, name_key, *name);
  WriteNumber(json, "mean", spread.Mean());
  json.EndObject();
}

void WriteFirstBeyond(JsonWriter& json, const std::optional<std::int64_t>& frame) {
  json.Key("first_beyond");
  if (!frame) return json.Null();
  json.Integer(*frame);
}

void WriteFrameRates(JsonWriter& json, bool differ, std::int32_t in_a, std::int32_t in_b) {
  json.Key("frame_rate");
  if (!differ) return json.Null();
  json.BeginArray(JsonWriter::Layout::kOneLine);
  json.Integer(in_a);
  json.Integer(in_b);
  json.EndArray();
}

}  // namespace cli
