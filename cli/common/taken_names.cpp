#include "cli/common/taken_names.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <map>
#include <tuple>

#include "cli/common/choice.h"
#include "cli/common/messages.h"
#include "formats/mnm/mapping_lines.h"
#include "inspect/check/findings.h"
#include "inspect/mapping/marker_words.h"

namespace cli {
namespace {

using orvane::AmbiguousNames;
using orvane::CountOf;
using orvane::InSmallLetters;
using orvane::NameMatch;
using orvane::NameMatching;
using orvane::Quote;
using orvane::SubjectBeside;

NameMatching MatchingNamed(const std::string& word) {
  if (word == "exact") return NameMatching::kExact;
  return word == "case" ? NameMatching::kCase : NameMatching::kSubject;
}

// How a name differs from that of the mapping.
struct Difference {
  std::string subject;  // before the marker; empty when neither has another than the other one
  std::string mapped;
  bool is_case = false;  // of letters alone

  bool operator<(const Difference& other) const {
    return std::tie(subject, mapped, is_case) <
           std::tie(other.subject, other.mapped, other.is_case);
  }
};

Difference DifferenceOf(const std::string& marker, const std::string& mapped) {
  return {SubjectBeside(marker, mapped), SubjectBeside(mapped, marker),
          InSmallLetters(marker) == InSmallLetters(mapped)};
}

// "39 names of "anna:" are taken for those of "walker:"".
std::string Describe(std::size_t count, const Difference& difference) {
  const auto& [subject, mapped, is_case] = difference;
  const bool has_none = subject.empty() && mapped.empty();
  std::string text = CountOf(count, "name");
  if (!subject.empty()) text += " of " + Quote(subject);
  if (subject.empty() && !mapped.empty()) text += " without a subject";
  if (has_none && !is_case) text += " with blanks";
  text += count == 1 ? " is taken for that" : " are taken for those";
  if (!mapped.empty()) return text + " of " + Quote(mapped);
  if (!has_none) return text + " without a subject";
  return text + (is_case ? " in another case of letters" : " with underscores");
}

// "a" or "b".
std::string Alternatives(const std::vector<std::string>& names) {
  std::string text;
  for (const std::string& name : names) text += (text.empty() ? "" : " or ") + Quote(name);
  return text;
}

std::string Describe(const AmbiguousNames& names) {
  if (names.mapped.size() == 1) {
    return Quote(names.mapped[0]) + " of the mapping could be " + Alternatives(names.markers);
  }
  if (names.markers.size() == 1) {
    return Quote(names.markers[0]) + " could be " + Alternatives(names.mapped) + " of the mapping";
  }
  return Quote(names.markers[0]) + " and " + Quote(names.markers[1]) +
         " are of two subjects, and " + Quote(names.mapped[0]) + " and " + Quote(names.mapped[1]) +
         " of the mapping of one";
}

std::string AdviceFor(const AmbiguousNames& names) {
  if (std::all_of(names.markers.begin(), names.markers.end(), orvane::CannotBeMapped)) {
    return "No mapping can name a marker with blanks: without them in the file, an entry says "
           "which.";
  }
  return "An entry for one of them in the mapping says which; \"orvane map suggest --subject "
         "NAME\" makes a mapping of one subject.";
}

}  // namespace

CLI::Option* AddNamesFlag(CLI::App& verb, NameMatching& names) {
  return AddChoice(verb, "--names", {"exact", "case", "subject"},
                   "Which names are those of the mapping: \"case\" takes other capital letters for "
                   "the same, \"subject\" also another subject before the marker, or none, and "
                   "blanks and underscores for colons (exact)",
                   [&names](const std::string& word) { names = MatchingNamed(word); });
}

std::string DescribeTaken(const NameMatch& match) {
  std::map<Difference, std::size_t> counts;
  for (const auto& [marker, mapped] : match.taken) ++counts[DifferenceOf(marker, mapped)];
  std::string text;
  for (const auto& [difference, count] : counts) {
    text += (text.empty() ? "" : ", and ") + Describe(count, difference);
  }
  return text;
}

void TellOfTaken(const std::string& file, const NameMatch& match, std::size_t files) {
  const std::string taken = DescribeTaken(match);
  const std::string extent = files == 1 ? "" : "in " + CountOf(files, "file") + ", first here: ";
  if (!taken.empty()) Print(Severity::kWarning, {file, "note: " + extent + taken, ""});
}

std::optional<Complaint> FindAmbiguity(const std::string& file, const NameMatch& match) {
  if (match.ambiguous.empty()) return std::nullopt;
  std::string text = Describe(match.ambiguous.front());
  if (match.ambiguous.size() > 1) {
    text += ", the first of " + CountOf(match.ambiguous.size(), "such case");
  }
  return Complaint{file, text, AdviceFor(match.ambiguous.front())};
}

void WriteTaken(JsonWriter& json, const NameMatch& match) {
  json.BeginArray(JsonWriter::Layout::kLines);
  for (const auto& [marker, mapped] : match.taken) {
    json.BeginObject();
    json.Key("marker");
    json.String(marker);
    json.Key("taken_for");
    json.String(mapped);
    json.EndObject();
  }
  json.EndArray();
}

}  // namespace cli
