#include "cli/export/export_summary.h"

#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/common/report.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::FormatInt;

using Layout = JsonWriter::Layout;

constexpr int kVersion = 2;

std::int64_t LastFrame(const ExportedMotion& motion) {
  return motion.first_frame + motion.frames - 1;
}

}  // namespace

void PrintExportSummary(const ExportedFile& file, std::ostream& out) {
  const ExportedMotion& motion = file.motion;
  out << "Exported " << Printable(file.input) << '\n'
      << "  Segments  " << FormatInt(motion.segments) << '\n'
      << "  Frames    " << FramesAtRate({motion.first_frame, LastFrame(motion)}, motion.frame_rate)
      << '\n'
      << "  File      " << Printable(file.output) << " ("
      << FormatInt(static_cast<std::int64_t>(motion.bytes)) << " bytes)\n";
  if (!file.is_checked) out << "  Report    none: --no-report\n";
}

void PrintExportJson(const ExportedFile& file, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  WriteInteger(json, "version", kVersion);
  WriteText(json, "scene", file.input);
  WriteInteger(json, "segments", file.motion.segments);
  json.Key("frames");
  json.BeginArray(Layout::kOneLine);
  json.Integer(file.motion.first_frame);
  json.Integer(LastFrame(file.motion));
  json.EndArray();
  WriteInteger(json, "frame_rate", file.motion.frame_rate);
  WriteText(json, "file", file.output);
  WriteInteger(json, "bytes", static_cast<std::int64_t>(file.motion.bytes));
  json.Key("findings");
  WriteFindings(json, file.report);
  json.Key("warnings");
  json.BeginArray(Layout::kLines);
  for (const Complaint& warning : file.warnings) json.String(warning.text);
  json.EndArray();
  json.EndObject();
}

}  // namespace cli
