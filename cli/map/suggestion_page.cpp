#include "cli/map/suggestion_page.h"

#include <algorithm>
#include <cstdint>

#include "cli/common/json_writer.h"
#include "cli/common/messages.h"
#include "cli/common/page_text.h"
#include "cli/common/report.h"
#include "formats/text/numbers.h"
#include "inspect/check/findings.h"
#include "inspect/mapping/marker_words.h"

namespace cli {
namespace {

using orvane::AmbiguousMarker;
using orvane::CountOf;
using orvane::NameReason;
using orvane::NameSuggestion;
using orvane::SuggestedMarker;

constexpr std::size_t kWidthOfStandardNames = 8;
constexpr int kVersion = 2;

std::string Describe(NameReason reason, const std::string& name) {
  switch (reason) {
    case NameReason::kSame:
      return "the same name";
    case NameReason::kSubject:
      return "the same name behind " +
             Printable("\"" + std::string(orvane::DivideName(name).subject) + "\"");
    case NameReason::kCase:
      return "the same name but for capital letters";
    case NameReason::kSynonym:
      return "a usual name of the same place";
  }
  return "";
}

const char* WordFor(NameReason reason) {
  constexpr const char* kWords[] = {"same", "subject", "case", "synonym"};
  return kWords[static_cast<std::size_t>(reason)];
}

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
    for (const SuggestedMarker& sure : Suggestion().sure) PrintSure(sure);
    for (const AmbiguousMarker& ambiguous : Suggestion().ambiguous) PrintAmbiguous(ambiguous);
    PrintLeftOut("No role by their names", Suggestion().without_role);
    PrintLeftOut("Names that no mapping can hold", Suggestion().unmappable);
    if (!Suggestion().missing.empty()) {
      out_ << "Needed, and not found: "
           << Listed(Suggestion().missing, [](const std::string& name) { return name; }) << '\n';
    }
    out_ << orvane::FormatInt(static_cast<std::int64_t>(Suggestion().sure.size())) << " of "
         << CountOf(report_.markers.size(), "marker") << " suggested";
    out_ << (report_.output.empty() ? "; no mapping written\n"
                                    : ": " + Printable(report_.output) + '\n');
  }

 private:
  [[nodiscard]] const NameSuggestion& Suggestion() const { return report_.suggestion; }
  [[nodiscard]] const std::string& NameOf(std::size_t marker) const {
    return report_.markers[marker];
  }

  void PrintSure(const SuggestedMarker& sure) {
    const std::string& name = NameOf(sure.marker);
    out_ << PadRight(sure.standard, kWidthOfStandardNames) << PadRight(Printable(name), Widest())
         << "  " << Describe(sure.reason, name) << '\n';
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
    for (const SuggestedMarker& sure : Suggestion().sure) {
      widest = std::max(widest, Width(Printable(NameOf(sure.marker))));
    }
    return std::min(widest, kWidestNames);
  }

  const SuggestionReport& report_;
  std::ostream& out_;
};

void WriteText(JsonWriter& json, const char* key, const std::string& text) {
  json.Key(key);
  text.empty() ? json.Null() : json.String(text);
}

void WriteMarkers(JsonWriter& json, const char* key, const SuggestionReport& report,
                  const std::vector<std::size_t>& markers) {
  json.Key(key);
  json.BeginArray(JsonWriter::Layout::kOneLine);
  for (const std::size_t marker : markers) json.String(report.markers[marker]);
  json.EndArray();
}

void WriteNames(JsonWriter& json, const char* key, const std::vector<std::string>& names) {
  json.Key(key);
  json.BeginArray(JsonWriter::Layout::kOneLine);
  for (const std::string& name : names) json.String(name);
  json.EndArray();
}

void WriteSuggestion(JsonWriter& json, const SuggestionReport& report) {
  json.Key("suggested");
  json.BeginArray(JsonWriter::Layout::kLines);
  for (const SuggestedMarker& sure : report.suggestion.sure) {
    json.BeginObject();
    WriteText(json, "standard", sure.standard);
    WriteText(json, "marker", report.markers[sure.marker]);
    WriteText(json, "reason", WordFor(sure.reason));
    json.EndObject();
  }
  json.EndArray();
  json.Key("ambiguous");
  json.BeginArray(JsonWriter::Layout::kLines);
  for (const AmbiguousMarker& ambiguous : report.suggestion.ambiguous) {
    json.BeginObject();
    WriteText(json, "standard", ambiguous.standard);
    WriteMarkers(json, "markers", report, ambiguous.markers);
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
  WriteText(json, "file", report.file);
  WriteText(json, "mapping", report.output);
  WriteSuggestion(json, report);
  WriteNames(json, "missing", report.suggestion.missing);
  WriteMarkers(json, "without_role", report, report.suggestion.without_role);
  WriteMarkers(json, "unmappable", report, report.suggestion.unmappable);
  WriteNames(json, "subjects", report.suggestion.subjects);
  json.Key("findings");
  WriteFindings(json, report.findings);
  json.EndObject();
}

}  // namespace cli
