#include "cli/map/suggestion_page.h"

#include <algorithm>
#include <cstdint>

#include "cli/common/json_members.h"
#include "cli/common/json_writer.h"
#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/common/report.h"
#include "formats/text/numbers.h"
#include "inspect/check/findings.h"

namespace cli {
namespace {

using orvane::AmbiguousMarker;
using orvane::CountOf;
using orvane::UnsurePlace;

constexpr std::size_t kWidthOfStandardNames = 8;
constexpr int kVersion = 2;

// Names with commas between them.
template <typename Names, typename NameOf>
std::string Listed(const Names& names, const NameOf& name_of) {
  std::string text;
  for (const auto& name : names) text += (text.empty() ? "" : ", ") + Printable(name_of(name));
  return text;
}

class Page {
 public:
  Page(const SuggestionReport& report, std::ostream& out) : report_(report), out_(out) {}

  void Print() {
    for (const SuggestedRow& row : report_.suggested) PrintSuggested(row);
    for (const AmbiguousMarker& ambiguous : report_.ambiguous) PrintAmbiguous(ambiguous);
    for (const UnsurePlace& unsure : report_.unsure) {
      out_ << "Left out: " << unsure.part << ": " << unsure.reason << '\n';
    }
    PrintLeftOut(report_.is_by_geometry ? "No role by where they sit" : "No role by their names",
                 report_.without_role);
    PrintLeftOut("Names that no mapping can hold", report_.unmappable);
    if (!report_.missing.empty()) {
      out_ << "Needed, and not found: "
           << Listed(report_.missing, [](const std::string& name) { return name; }) << '\n';
    }
    out_ << orvane::FormatInt(static_cast<std::int64_t>(report_.suggested.size())) << " of "
         << CountOf(report_.markers.size(), "marker") << " suggested";
    out_ << (report_.output.empty() ? "; no mapping written\n"
                                    : ": " + Printable(report_.output) + '\n');
  }

 private:
  [[nodiscard]] const std::string& NameOf(std::size_t marker) const {
    return report_.markers[marker];
  }

  void PrintSuggested(const SuggestedRow& row) {
    out_ << PadRight(row.standard, kWidthOfStandardNames)
         << PadRight(Printable(NameOf(row.marker)), Widest()) << "  " << row.words << '\n';
  }

  void PrintAmbiguous(const AmbiguousMarker& ambiguous) {
    out_ << PadRight(ambiguous.standard, kWidthOfStandardNames) << "left out: one of "
         << Listed(ambiguous.markers, [this](std::size_t marker) { return NameOf(marker); })
         << '\n';
  }

  void PrintLeftOut(const char* heading, const std::vector<std::size_t>& markers) {
    if (markers.empty()) return;
    out_ << heading << ": "
         << Listed(markers, [this](std::size_t marker) { return NameOf(marker); }) << '\n';
  }

  [[nodiscard]] std::size_t Widest() const {
    std::size_t widest = 0;
    for (const SuggestedRow& row : report_.suggested) {
      widest = std::max(widest, Width(Printable(NameOf(row.marker))));
    }
    return std::min(widest, kWidestNames);
  }

  const SuggestionReport& report_;
  std::ostream& out_;
};

void WriteMarkers(JsonWriter& json, const char* key, const SuggestionReport& report,
                  const std::vector<std::size_t>& markers) {
  json.Key(key);
  json.BeginArray(JsonWriter::Layout::kOneLine);
  for (const std::size_t marker : markers) json.String(report.markers[marker]);
  json.EndArray();
}

void WriteSuggested(JsonWriter& json, const SuggestionReport& report) {
  json.Key("suggested");
  json.BeginArray(JsonWriter::Layout::kLines);
  for (const SuggestedRow& row : report.suggested) {
    json.BeginObject();
    WriteTextOrNull(json, "standard", row.standard);
    WriteTextOrNull(json, "marker", report.markers[row.marker]);
    WriteTextOrNull(json, "reason", row.reason);
    if (report.is_by_geometry) WriteTextOrNull(json, "words", row.words);
    json.EndObject();
  }
  json.EndArray();
}

void WriteAmbiguous(JsonWriter& json, const SuggestionReport& report) {
  json.Key("ambiguous");
  json.BeginArray(JsonWriter::Layout::kLines);
  for (const AmbiguousMarker& ambiguous : report.ambiguous) {
    json.BeginObject();
    WriteTextOrNull(json, "standard", ambiguous.standard);
    WriteMarkers(json, "markers", report, ambiguous.markers);
    json.EndObject();
  }
  json.EndArray();
}

void WriteUnsure(JsonWriter& json, const SuggestionReport& report) {
  json.Key("unsure");
  json.BeginArray(JsonWriter::Layout::kLines);
  for (const UnsurePlace& unsure : report.unsure) {
    json.BeginObject();
    WriteTextOrNull(json, "part", unsure.part);
    WriteTextOrNull(json, "reason", unsure.reason);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace

void PrintSuggestionPage(const SuggestionReport& report, std::ostream& out) {
  Page(report, out).Print();
}

void PrintSuggestionJson(const SuggestionReport& report, std::ostream& out) {
  JsonWriter json(out);
  json.BeginObject();
  json.Key("version");
  json.Integer(kVersion);
  WriteTextOrNull(json, "file", report.file);
  WriteTextOrNull(json, "mapping", report.output);
  WriteSuggested(json, report);
  WriteAmbiguous(json, report);
  if (report.is_by_geometry) WriteUnsure(json, report);
  WriteTexts(json, "missing", report.missing);
  WriteMarkers(json, "without_role", report, report.without_role);
  WriteMarkers(json, "unmappable", report, report.unmappable);
  WriteTexts(json, "subjects", report.subjects);
  json.Key("findings");
  WriteFindings(json, report.findings);
  json.EndObject();
}

}  // namespace cli
