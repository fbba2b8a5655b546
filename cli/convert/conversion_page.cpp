#include <algorithm>
#include <array>

#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/convert/conversion_report.h"
#include "formats/text/numbers.h"

namespace cli {
namespace {

constexpr std::size_t kColumns = 8;
using Row = std::array<std::string, kColumns>;

constexpr std::size_t kFirstNumber = 1;
constexpr std::size_t kFindings = 5;

bool IsNumber(std::size_t column) { return column >= kFirstNumber && column < kFindings; }

// "1e 2w 40n", or "-" where nothing was found.
std::string Findings(const orvane::FileReport& report,
                     const std::optional<orvane::FileReport>& mapping) {
  constexpr std::pair<orvane::FindingSeverity, char> kLetters[] = {
      {orvane::FindingSeverity::kError, 'e'},
      {orvane::FindingSeverity::kWarning, 'w'},
      {orvane::FindingSeverity::kNote, 'n'}};
  if (report.file.empty()) return "-";
  std::string text;
  for (const auto& [severity, letter] : kLetters) {
    const std::size_t count = report.Count(severity) + (mapping ? mapping->Count(severity) : 0);
    if (count == 0) continue;
    text +=
        (text.empty() ? "" : " ") + orvane::FormatInt(static_cast<std::int64_t>(count)) + letter;
  }
  return text.empty() ? "-" : text;
}

Row RowOf(const Conversion& conversion, const std::optional<orvane::FileReport>& mapping) {
  const auto number = [&conversion](std::int64_t value) {
    return conversion.delivered ? orvane::FormatInt(value) : "-";
  };
  return {Printable(conversion.input),     number(conversion.frames),
          number(conversion.markers_kept), number(conversion.markers_dropped),
          number(conversion.dropouts),     Findings(conversion.report, mapping),
          Printable(conversion.output),    std::string(NameOf(conversion.status))};
}

// Long names push their lines out instead of all of them.
std::array<std::size_t, kColumns> WidthsOf(const std::vector<Row>& rows) {
  std::array<std::size_t, kColumns> widths{};
  for (const Row& row : rows) {
    for (std::size_t column = 0; column < kColumns; ++column) {
      widths[column] = std::max(widths[column], std::min(Width(row[column]), kWidestNames));
    }
  }
  return widths;
}

void PrintRow(const Row& row, const std::array<std::size_t, kColumns>& widths, std::ostream& out) {
  for (std::size_t column = 0; column + 1 < kColumns; ++column) {
    out << (IsNumber(column) ? PadLeft(row[column], widths[column])
                             : PadRight(row[column], widths[column]))
        << "  ";
  }
  out << row.back() << '\n';
}

}  // namespace

void PrintConversionPage(const std::vector<Conversion>& conversions,
                         const std::optional<orvane::FileReport>& mapping, std::ostream& out) {
  std::vector<Row> rows = {
      {"File", "Frames", "Kept", "Dropped", "Dropouts", "Found", "Output", "Status"}};
  for (const Conversion& conversion : conversions) rows.push_back(RowOf(conversion, mapping));
  const auto widths = WidthsOf(rows);
  for (const Row& row : rows) PrintRow(row, widths, out);
  const auto done =
      std::count_if(conversions.begin(), conversions.end(), [](const Conversion& conversion) {
        return conversion.status == ConversionStatus::kConverted;
      });
  out << orvane::FormatInt(done) << " of "
      << orvane::FormatInt(static_cast<std::int64_t>(conversions.size())) << " converted\n";
}

}  // namespace cli
