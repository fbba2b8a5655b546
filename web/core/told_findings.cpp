#include "web/core/told_findings.h"

#include <algorithm>
#include <sstream>
#include <unordered_map>

#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/common/report.h"
#include "inspect/report/report.h"
#include "web/core/places.h"

namespace web {
namespace {

using cli::JsonWriter;
using orvane::FileReport;
using orvane::Finding;
using orvane::ReportedFinding;
using Layout = JsonWriter::Layout;

class FindingsWriter {
 public:
  FindingsWriter(const Take& take, JsonWriter& json)
      : json_(json), contents_(take.GetContents()), kept_(take.Checked().findings.Sorted()) {
    for (const std::string& name : contents_.objects) index_of_.emplace(name, index_of_.size());
    std::vector<orvane::LinePlace> places;
    places.reserve(kept_.size());
    for (const Finding& finding : kept_) places.push_back({finding.line, finding.column});
    places_ = FindPlaces(take, contents_, places);
  }

  void Write(const ReportedFinding& finding) {
    json_.BeginObject();
    cli::WriteText(json_, "code", finding.code);
    cli::WriteText(json_, "severity", SeverityName(finding.severity));
    cli::WriteCount(json_, "count", finding.count);
    cli::WriteText(json_, "text", cli::TextOf(finding));
    cli::WriteText(json_, "cause", finding.cause);
    cli::WriteText(json_, "consequence", finding.consequence);
    if (finding.line > 0) {
      cli::WriteCount(json_, "line", finding.line);
      cli::WriteCount(json_, "column", finding.column);
    }
    WriteObjects(finding);
    WritePlaces(finding);
    json_.EndObject();
  }

 private:
  void WriteObjects(const ReportedFinding& finding) {
    json_.Key("objects");
    json_.BeginArray(Layout::kOneLine);
    for (const std::string& name : finding.names) {
      const auto found = index_of_.find(name);
      if (found != index_of_.end()) json_.Integer(static_cast<std::int64_t>(found->second));
    }
    json_.EndArray();
  }

  void WritePlaces(const ReportedFinding& finding) {
    json_.Key("places");
    json_.BeginArray(Layout::kLines);
    for (std::size_t i = 0; i < kept_.size(); ++i) {
      if (kept_[i].rule.code == finding.code && kept_[i].line > 0) WritePlace(kept_[i], places_[i]);
    }
    json_.EndArray();
  }

  void WritePlace(const Finding& finding, const PlaceInTake& place) {
    json_.BeginObject();
    cli::WriteCount(json_, "line", finding.line);
    cli::WriteCount(json_, "column", finding.column);
    if (place.object) cli::WriteCount(json_, "object", *place.object);
    if (place.frame) cli::WriteCount(json_, "frame", *place.frame);
    json_.EndObject();
  }

  JsonWriter& json_;
  const Contents contents_;
  const std::vector<Finding> kept_;
  std::vector<PlaceInTake> places_;  // of those that are kept
  std::unordered_map<std::string, std::size_t> index_of_;
};

void RequireTaken(const Take& take, orvane::Action action) {
  const std::string_view kind = take.Checked().kind;
  if (Takes(action, kind)) return;
  throw Refusal{"\"" + std::string(NameOf(action)) + "\" takes no " + std::string(kind) + " files"};
}

}  // namespace

Answer TellFindings(const Take& take, orvane::Action action) {
  RequireTaken(take, action);
  const FileReport report = ReportOn(take.Checked(), action);
  std::ostringstream program_json;
  cli::PrintReportsJson({report}, program_json);
  std::ostringstream text;
  JsonWriter json(text);
  json.BeginObject();
  cli::WriteText(json, "json", program_json.str());
  json.Key("findings");
  json.BeginArray(Layout::kLines);
  FindingsWriter writer(take, json);
  for (const ReportedFinding& finding : report.findings) writer.Write(finding);
  json.EndArray();
  json.EndObject();
  return {false, text.str(), {}};
}

}  // namespace web
