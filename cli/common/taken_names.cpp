#include "cli/common/taken_names.h"

#include <CLI/CLI.hpp>
#include <map>
#include <utility>

#include "cli/common/choice.h"
#include "cli/common/messages.h"
#include "inspect/check/findings.h"

namespace cli {
namespace {

using orvane::AmbiguousNames;
using orvane::CountOf;
using orvane::NameMatch;
using orvane::NameMatching;
using orvane::Quote;
using orvane::SubjectBeside;

NameMatching MatchingNamed(const std::string& word) {
  if (word == "exact") return NameMatching::kExact;
  return word == "case" ? NameMatching::kCase : NameMatching::kSubject;
}

// "39 names of "anna:" are taken for those of "walker:"".
std::string Describe(std::size_t count, const std::string& subject, const std::string& mapped) {
  const bool is_one = count == 1;
  std::string text = CountOf(count, "name");
  if (!subject.empty()) text += " of " + Quote(subject);
  if (subject.empty() && !mapped.empty()) text += " without a subject";
  text += is_one ? " is taken for that" : " are taken for those";
  if (!mapped.empty()) return text + " of " + Quote(mapped);
  return text + (subject.empty() ? " in another case of letters" : " without a subject");
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

}  // namespace

CLI::Option* AddNamesFlag(CLI::App& verb, NameMatching& names) {
  return AddChoice(verb, "--names", {"exact", "case", "subject"},
                   "Which names are those of the mapping: \"case\" takes other capital letters for "
                   "the same, \"subject\" also another subject before the marker, or none (exact)",
                   [&names](const std::string& word) { names = MatchingNamed(word); });
}

std::string DescribeTaken(const NameMatch& match) {
  std::map<std::pair<std::string, std::string>, std::size_t> counts;  // by both subjects
  for (const auto& [marker, mapped] : match.taken) {
    ++counts[{SubjectBeside(marker, mapped), SubjectBeside(mapped, marker)}];
  }
  std::string text;
  for (const auto& [subjects, count] : counts) {
    text += (text.empty() ? "" : ", and ") + Describe(count, subjects.first, subjects.second);
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
  return Complaint{file, text,
                   "An entry for one of them in the mapping says which; \"orvane map suggest "
                   "--subject NAME\" makes a mapping of one subject."};
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
