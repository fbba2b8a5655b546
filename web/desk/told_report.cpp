#include "web/desk/told_report.h"

#include "cli/common/report.h"
#include "web/desk/told.h"

namespace web {

void WriteToldFindings(cli::JsonWriter& json, const orvane::FileReport& report) {
  json.Key("findings");
  json.BeginArray(cli::JsonWriter::Layout::kLines);
  for (const orvane::ReportedFinding& finding : report.findings) {
    json.BeginObject();
    cli::WriteText(json, "code", finding.code);
    cli::WriteText(json, "severity", SeverityName(finding.severity));
    cli::WriteText(json, "text", cli::TextOf(finding));
    json.EndObject();
  }
  json.EndArray();
}

void TellReport(std::string_view what, const orvane::FileReport& report) {
  Telling telling(what);
  WriteToldFindings(telling.Json(), report);
  telling.Send();
}

std::string RefusalOf(const cli::Failure& failure) {
  std::string words;
  for (const cli::Complaint& complaint : failure.complaints) {
    words += (words.empty() ? "" : " ") + complaint.text + ".";
    if (!complaint.advice.empty()) words += " " + complaint.advice;
  }
  return words;
}

void TellLosses(const orvane::FileReport& report, const std::string& refusal) {
  Telling telling("losses");
  WriteToldFindings(telling.Json(), report);
  cli::WriteText(telling.Json(), "refusal", refusal);
  telling.Send();
}

}  // namespace web
