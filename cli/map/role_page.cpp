#include "cli/map/role_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/common/report.h"
#include "cli/common/taken_names.h"
#include "formats/text/numbers.h"
#include "inspect/check/findings.h"

namespace cli {
namespace {

using orvane::CountOf;
using orvane::MappingRole;

constexpr int kVersion = 2;

// Standard marker, description, marker, the same in the capture, and how complete it is there.
constexpr std::size_t kColumns = 5;
constexpr std::size_t kColumnsWithoutCapture = 3;
constexpr std::size_t kComplete = 4;
using Row = std::array<std::string, kColumns>;

const PresentMarker* FindPresent(const RoleReport& report, const MappingRole& role) {
  const auto found = report.present.find(role.marker);
  return role.marker.empty() || found == report.present.end() ? nullptr : &found->second;
}

Row RowOf(const RoleReport& report, const MappingRole& role) {
  Row row = {Printable(role.standard),
             role.description.empty() ? "no standard marker" : role.description,
             role.marker.empty() ? "missing, and needed" : Printable(role.marker), "-", "-"};
  const PresentMarker* const present = FindPresent(report, role);
  if (present != nullptr) {
    row[3] = Printable(present->name);
    row[kComplete] = orvane::FormatDouble(100 * present->coverage, 1) + " %";
  }
  return row;
}

void PrintRow(const Row& row, const std::array<std::size_t, kColumns>& widths, std::size_t columns,
              std::ostream& out) {
  for (std::size_t column = 0; column < columns; ++column) {
    const bool is_last = column + 1 == columns;
    if (column == kComplete) {
      out << PadLeft(row[column], widths[column]);
    } else {
      out << (is_last ? row[column] : PadRight(row[column], widths[column]));
    }
    out << (is_last ? "\n" : "  ");
  }
}

std::size_t CountMapped(const RoleReport& report) {
  return static_cast<std::size_t>(
      std::count_if(report.roles.begin(), report.roles.end(),
                    [](const MappingRole& role) { return !role.marker.empty(); }));
}

std::string Total(const RoleReport& report) {
  const std::size_t mapped = CountMapped(report);
  const std::size_t missing = report.roles.size() - mapped;
  std::string total = CountOf(mapped, "marker") + " mapped";
  if (missing > 0) total += ", " + CountOf(missing, "needed one") + " missing";
  if (report.capture.empty()) return total;
  const auto present = std::count_if(
      report.roles.begin(), report.roles.end(),
      [&report](const MappingRole& role) { return FindPresent(report, role) != nullptr; });
  return total + "; " + orvane::FormatInt(present) + " of them in " + Printable(report.capture);
}

void WriteRole(JsonWriter& json, const RoleReport& report, const MappingRole& role) {
  const PresentMarker* const present = FindPresent(report, role);
  json.BeginObject();
  WriteTextOrNull(json, "standard", role.standard);
  WriteTextOrNull(json, "description", role.description);
  json.Key("needed");
  json.Bool(role.is_needed);
  WriteTextOrNull(json, "marker", role.marker);
  WriteTextOrNull(json, "in_file", present == nullptr ? "" : present->name);
  json.Key("coverage");
  present == nullptr ? json.Null() : json.Number(present->coverage);
  json.EndObject();
}

}  // namespace

void PrintRolePage(const RoleReport& report, std::ostream& out) {
  std::vector<Row> rows = {{"Standard", "Description", "Marker", "In the file", "Complete"}};
  for (const MappingRole& role : report.roles) rows.push_back(RowOf(report, role));
  std::array<std::size_t, kColumns> widths{};
  for (const Row& row : rows) {
    for (std::size_t column = 0; column < kColumns; ++column) {
      widths[column] = std::max(widths[column], std::min(Width(row[column]), kWidestNames));
    }
  }
  const std::size_t columns = report.capture.empty() ? kColumnsWithoutCapture : kColumns;
  for (const Row& row : rows) PrintRow(row, widths, columns, out);
  out << Total(report) << '\n';
}

void PrintRoleJson(const RoleReport& report, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  WriteTextOrNull(json, "mapping", report.mapping);
  WriteTextOrNull(json, "file", report.capture);
  json.Key("roles");
  json.BeginArray(JsonWriter::Layout::kLines);
  for (const MappingRole& role : report.roles) WriteRole(json, report, role);
  json.EndArray();
  json.Key("names_taken");
  WriteTaken(json, report.match);
  json.Key("reports");
  json.BeginArray(JsonWriter::Layout::kLines);
  for (const orvane::FileReport& each : report.reports) WriteReport(json, each);
  json.EndArray();
  json.EndObject();
}

}  // namespace cli
