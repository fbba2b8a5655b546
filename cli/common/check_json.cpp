#include "cli/common/check_report.h"
#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"

namespace cli {
namespace {

using orvane::CheckedFile;
using orvane::Finding;
using orvane::FindingList;
using orvane::FindingSeverity;
using orvane::SeverityName;

using Layout = JsonWriter::Layout;

constexpr int kVersion = 1;

void WriteFinding(JsonWriter& json, const Finding& finding) {
  json.BeginObject();
  WriteCount(json, "line", finding.line);
  WriteCount(json, "column", finding.column);
  WriteText(json, "code", finding.rule.code);
  WriteText(json, "severity", SeverityName(finding.rule.severity));
  WriteText(json, "found", finding.found);
  WriteText(json, "expected", finding.expected);
  WriteText(json, "effect", finding.effect);
  json.EndObject();
}

void WriteTotals(JsonWriter& json, const FindingList& findings) {
  WriteCount(json, "errors", findings.Count(FindingSeverity::kError));
  WriteCount(json, "warnings", findings.Count(FindingSeverity::kWarning));
  WriteCount(json, "notes", findings.Count(FindingSeverity::kNote));
  json.Key("totals");
  json.BeginObject();
  for (const auto& [code, total] : findings.Totals()) WriteCount(json, code, total.count);
  json.EndObject();
}

void WriteFile(JsonWriter& json, const CheckedFile& file) {
  json.BeginObject();
  WriteText(json, "file", file.file);
  WriteText(json, "file_type", file.kind);
  WriteTotals(json, file.findings);
  json.Key("findings");
  json.BeginArray(Layout::kLines);
  for (const Finding& finding : file.findings.Sorted()) WriteFinding(json, finding);
  json.EndArray();
  json.EndObject();
}

}  // namespace

void PrintCheckJson(const std::vector<CheckedFile>& files, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  json.Key("files");
  json.BeginArray(Layout::kLines);
  for (const CheckedFile& file : files) WriteFile(json, file);
  json.EndArray();
  json.EndObject();
}

}  // namespace cli
