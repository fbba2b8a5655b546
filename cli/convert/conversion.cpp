#include "cli/convert/conversion.h"

#include <nlohmann/json.hpp>

#include "inspect/report/finding_words.h"

namespace cli {
namespace {

using nlohmann::json;
using orvane::FileReport;
using orvane::ReportedFinding;

json Pack(const std::vector<Complaint>& complaints) {
  json packed = json::array();
  for (const Complaint& complaint : complaints) {
    packed.push_back({complaint.subject, complaint.text, complaint.advice});
  }
  return packed;
}

std::vector<Complaint> UnpackComplaints(const json& packed) {
  std::vector<Complaint> complaints;
  for (const json& one : packed) complaints.push_back({one.at(0), one.at(1), one.at(2)});
  return complaints;
}

json Pack(const FileReport& report) {
  json packed = json::array();
  for (const ReportedFinding& finding : report.findings) {
    packed.push_back({finding.code, static_cast<int>(finding.severity), finding.count, finding.line,
                      finding.column, finding.names, finding.cause, finding.consequence});
  }
  return packed;
}

// Codes and kinds of files are not kept by a report, which tells of them.
FileReport UnpackReport(const json& packed, const std::string& file) {
  FileReport report{file, "TRC", orvane::Action::kConvert, {}};
  for (const json& one : packed) {
    report.findings.push_back({orvane::FindMeaning(one.at(0).get<std::string>())->code,
                               static_cast<orvane::FindingSeverity>(one.at(1).get<int>()),
                               one.at(2), one.at(3), one.at(4), one.at(5), one.at(6), one.at(7)});
  }
  return report;
}

// What is ambiguous is among the errors.
json Pack(const orvane::NameMatch& match) {
  json packed = json::array();
  for (const auto& [marker, mapped] : match.taken) packed.push_back({marker, mapped});
  return packed;
}

orvane::NameMatch UnpackMatch(const json& packed) {
  orvane::NameMatch match;
  for (const json& one : packed) match.taken.emplace(one.at(0), one.at(1));
  return match;
}

json Pack(const Conversion& conversion) {
  return {conversion.input,        conversion.source,
          conversion.output,       static_cast<int>(conversion.status),
          conversion.delivered,    conversion.frames,
          conversion.markers_kept, conversion.markers_dropped,
          conversion.dropouts,     Pack(conversion.errors),
          Pack(conversion.report), conversion.told,
          conversion.is_empty,     conversion.z_up,
          Pack(conversion.match),  conversion.is_streamed};
}

Conversion Unpack(const json& packed) {
  return {packed.at(0),
          packed.at(1),
          packed.at(2),
          static_cast<ConversionStatus>(packed.at(3).get<int>()),
          packed.at(4),
          packed.at(5),
          packed.at(6),
          packed.at(7),
          packed.at(8),
          UnpackComplaints(packed.at(9)),
          UnpackReport(packed.at(10), packed.at(0)),
          packed.at(11),
          packed.at(12),
          packed.at(13),
          UnpackMatch(packed.at(14)),
          packed.at(15)};
}

}  // namespace

std::string_view NameOf(ConversionStatus status) {
  switch (status) {
    case ConversionStatus::kPlanned:
      return "planned";
    case ConversionStatus::kConverted:
      return "converted";
    case ConversionStatus::kBroken:
      return "broken";
    case ConversionStatus::kRefused:
      return "refused";
    case ConversionStatus::kEmpty:
      return "empty";
    case ConversionStatus::kExists:
      return "exists";
    case ConversionStatus::kUnreadable:
      return "unreadable";
    case ConversionStatus::kFailed:
      return "failed";
    case ConversionStatus::kInterrupted:
      return "interrupted";
  }
  return "";
}

ExitStatus ExitStatusOf(ConversionStatus status) {
  switch (status) {
    case ConversionStatus::kPlanned:
    case ConversionStatus::kConverted:
      return ExitStatus::kDone;
    case ConversionStatus::kBroken:
    case ConversionStatus::kRefused:
    case ConversionStatus::kEmpty:
      return ExitStatus::kRefused;
    case ConversionStatus::kExists:
    case ConversionStatus::kUnreadable:
    case ConversionStatus::kFailed:
      return ExitStatus::kInputOutput;
    case ConversionStatus::kInterrupted:
      return ExitStatus::kInterrupted;
  }
  return ExitStatus::kInputOutput;
}

// In binary, because file names need not be UTF-8.
std::string PackConversions(const std::vector<Conversion>& conversions) {
  json packed = json::array();
  for (const Conversion& conversion : conversions) packed.push_back(Pack(conversion));
  std::string bytes;
  json::to_cbor(packed, bytes);
  return bytes;
}

std::vector<Conversion> UnpackConversions(std::string_view bytes) {
  std::vector<Conversion> conversions;
  for (const json& packed : json::from_cbor(bytes)) conversions.push_back(Unpack(packed));
  return conversions;
}

}  // namespace cli
