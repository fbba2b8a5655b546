#include "cli/rewrite/rewrite_summary.h"

#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/common/messages.h"
#include "cli/common/report.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

constexpr int kVersion = 1;

const char* PartsOf(FileKind kind) { return kind == FileKind::kHtr ? "Segments" : "Markers "; }

}  // namespace

void PrintRewriteSummary(const RewrittenFile& file, std::ostream& out) {
  const std::string frames = file.frames.IsEmpty() ? "none" : NumbersOf(file.frames);
  out << "Rewritten " << Printable(file.input) << "\n  " << PartsOf(file.kind) << "  "
      << orvane::FormatInt(static_cast<std::int64_t>(file.parts)) << "\n  Frames    " << frames
      << " at " << file.rate << " frames per second\n  File      " << Printable(file.output) << " ("
      << orvane::FormatInt(static_cast<std::int64_t>(file.bytes)) << " bytes)\n";
  if (!file.is_checked) out << "  Report    none: --no-report\n";
}

void PrintRewriteJson(const RewrittenFile& file, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  WriteInteger(json, "version", kVersion);
  WriteText(json, "input", file.input);
  WriteCount(json, file.kind == FileKind::kHtr ? "segments" : "markers", file.parts);
  json.Key("frames");
  json.BeginArray(JsonWriter::Layout::kOneLine);
  json.Integer(file.frames.first);
  json.Integer(file.frames.last);
  json.EndArray();
  WriteText(json, "frame_rate", file.rate);
  WriteText(json, "file", file.output);
  WriteCount(json, "bytes", file.bytes);
  json.Key("findings");
  WriteFindings(json, file.report);
  json.EndObject();
}

}  // namespace cli
