#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/common/report.h"
#include "cli/common/taken_names.h"
#include "cli/convert/conversion_report.h"

namespace cli {
namespace {

using Layout = JsonWriter::Layout;

constexpr int kVersion = 2;

// Null when there is no output that the number could tell of.
void WriteCount(JsonWriter& json, std::string_view key, const Conversion& conversion,
                std::int64_t count) {
  json.Key(key);
  if (conversion.delivered) {
    json.Integer(count);
  } else {
    json.Null();
  }
}

std::vector<std::string> ErrorsOf(const Conversion& conversion) {
  std::vector<std::string> errors;
  for (const Complaint& complaint : conversion.errors) errors.push_back(complaint.text);
  return errors;
}

// What was found in the file.
std::vector<std::string> WarningsOf(const Conversion& conversion) {
  std::vector<std::string> warnings;
  for (const orvane::ReportedFinding& finding : conversion.report.findings) {
    if (finding.severity == orvane::FindingSeverity::kNote) continue;
    warnings.push_back(finding.cause + (finding.cause.ends_with("...") ? " " : ". ") +
                       finding.consequence);
  }
  return warnings;
}

void WriteFile(JsonWriter& json, const Conversion& conversion) {
  json.BeginObject();
  WriteText(json, "file", conversion.input);
  WriteText(json, "output", conversion.output);
  WriteText(json, "status", NameOf(conversion.status));
  json.Key("delivered");
  json.Bool(conversion.delivered);
  WriteCount(json, "frames", conversion, conversion.frames);
  WriteCount(json, "markers_kept", conversion, conversion.markers_kept);
  WriteCount(json, "markers_dropped", conversion, conversion.markers_dropped);
  WriteCount(json, "dropouts", conversion, conversion.dropouts);
  WriteTexts(json, "errors", ErrorsOf(conversion));
  WriteTexts(json, "warnings", WarningsOf(conversion));
  json.Key("names_taken");
  WriteTaken(json, conversion.match);
  json.Key("findings");
  WriteFindings(json, conversion.report);
  json.EndObject();
}

}  // namespace

void PrintConversionJson(const std::vector<Conversion>& conversions,
                         const std::vector<std::string>& logs,
                         const std::optional<orvane::FileReport>& mapping, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  json.Key("files");
  json.BeginArray(Layout::kLines);
  for (const Conversion& conversion : conversions) WriteFile(json, conversion);
  json.EndArray();
  json.Key("logs");
  json.BeginArray(Layout::kLines);
  for (const std::string& log : logs) json.String(log);
  json.EndArray();
  json.Key("mapping");
  WriteReport(json, mapping);
  json.EndObject();
}

}  // namespace cli
