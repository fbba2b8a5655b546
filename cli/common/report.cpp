#include "cli/common/report.h"

#include <algorithm>

#include "cli/common/json_members.h"
#include "cli/common/messages.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

using orvane::CountOf;
using orvane::FileReport;
using orvane::FindingSeverity;
using orvane::ReportedFinding;
using orvane::SeverityName;

using Layout = JsonWriter::Layout;

constexpr int kVersion = 2;

std::string Number(std::size_t value) {
  return orvane::FormatInt(static_cast<std::int64_t>(value));
}

std::string Names(const ReportedFinding& finding) {
  std::string names;
  for (const std::string& name : finding.names) {
    names += (names.empty() ? ": \"" : ", \"") + name + '"';
  }
  const bool are_all = finding.count <= finding.names.size() || finding.names.empty();
  return are_all ? names : names + ", ...";
}

std::string Place(const ReportedFinding& finding) {
  if (finding.line == 0) return "";
  return " (line " + Number(finding.line) + ", column " + Number(finding.column) + ")";
}

std::string Sentences(const std::string& cause, const ReportedFinding& finding) {
  return cause + (cause.ends_with("...") ? " " : ". ") + finding.consequence;
}

constexpr FindingSeverity kWorstFirst[] = {FindingSeverity::kError, FindingSeverity::kWarning,
                                           FindingSeverity::kNote};

std::string Counts(const FileReport& report) {
  std::string counts;
  for (const FindingSeverity severity : kWorstFirst) {
    const std::size_t count = report.Count(severity);
    if (count == 0) continue;
    if (!counts.empty()) counts += ", ";
    counts += CountOf(count, SeverityName(severity));
  }
  return counts;
}

void WriteFinding(JsonWriter& json, const ReportedFinding& finding) {
  json.BeginObject();
  WriteText(json, "code", finding.code);
  WriteText(json, "severity", SeverityName(finding.severity));
  WriteCount(json, "count", finding.count);
  WriteCount(json, "line", finding.line);
  WriteCount(json, "column", finding.column);
  json.Key("names");
  json.BeginArray(Layout::kOneLine);
  for (const std::string& name : finding.names) json.String(name);
  json.EndArray();
  WriteText(json, "cause", finding.cause);
  WriteText(json, "consequence", finding.consequence);
  json.EndObject();
}

}  // namespace

std::string TextOf(const ReportedFinding& finding) {
  return Sentences(finding.cause + Names(finding), finding);
}

std::string LineOf(const ReportedFinding& finding) {
  return Sentences(finding.cause + Names(finding) + Place(finding), finding) + " [" +
         std::string(finding.code) + "]";
}

Complaint WithCode(Complaint refusal, const FileReport& report,
                   const std::vector<std::string_view>& codes) {
  const auto finding = std::find_if(
      report.findings.begin(), report.findings.end(), [&codes](const ReportedFinding& each) {
        return std::find(codes.begin(), codes.end(), each.code) != codes.end();
      });
  if (finding != report.findings.end()) {
    refusal.text += " [" + std::string(finding->code) + "]";
  }
  return refusal;
}

void PrintReport(const FileReport& report, std::ostream& out) {
  const std::string file = Printable(report.file);
  for (const ReportedFinding& finding : report.findings) {
    out << file << ": " << SeverityName(finding.severity) << ": " << Printable(LineOf(finding))
        << '\n';
  }
  const std::string counts = Counts(report);
  out << file << ": " << (counts.empty() ? "clean" : counts) << " for " << NameOf(report.action)
      << '\n';
}

std::string BriefCounts(const FileReport& report) {
  std::string counts;
  for (const FindingSeverity severity : kWorstFirst) {
    const std::size_t count = report.Count(severity);
    if (count == 0) continue;
    counts += (counts.empty() ? "" : " ") + Number(count) + SeverityName(severity).front();
  }
  return counts.empty() ? "-" : counts;
}

void WriteFindings(JsonWriter& json, const FileReport& report) {
  json.BeginArray(Layout::kLines);
  for (const ReportedFinding& finding : report.findings) WriteFinding(json, finding);
  json.EndArray();
}

void WriteReport(JsonWriter& json, const std::optional<FileReport>& report) {
  if (!report) return json.Null();
  json.BeginObject();
  WriteText(json, "file", report->file);
  WriteText(json, "file_type", report->kind);
  WriteText(json, "action", NameOf(report->action));
  WriteCount(json, "errors", report->Count(FindingSeverity::kError));
  WriteCount(json, "warnings", report->Count(FindingSeverity::kWarning));
  WriteCount(json, "notes", report->Count(FindingSeverity::kNote));
  json.Key("findings");
  WriteFindings(json, *report);
  json.EndObject();
}

void PrintReportsJson(const std::vector<FileReport>& reports, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  json.Key("files");
  json.BeginArray(Layout::kLines);
  for (const FileReport& report : reports) WriteReport(json, report);
  json.EndArray();
  json.EndObject();
}

}  // namespace cli
