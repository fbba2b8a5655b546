#include "inspect/report/report.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <tuple>

#include "formats/text/numbers.h"
#include "inspect/report/finding_words.h"

namespace orvane {
namespace {

void ReplaceAll(std::string& text, std::string_view what, std::string_view by) {
  for (std::size_t at = text.find(what); at != std::string::npos;
       at = text.find(what, at + by.size())) {
    text.replace(at, what.size(), by);
  }
}

// "NumFrames" in "no NumFrames" and "NumFrames again": words of the format have no quotation marks.
std::string_view WordIn(std::string_view found) {
  constexpr std::string_view kNo = "no ";
  constexpr std::string_view kAgain = " again";
  if (found.starts_with(kNo)) return found.substr(kNo.size());
  return found.ends_with(kAgain) ? found.substr(0, found.size() - kAgain.size())
                                 : std::string_view();
}

// The name or value that a finding is about, without its quotation marks: what is quoted first.
std::string_view NameIn(std::string_view found) {
  const std::size_t begin = found.find('"');
  if (begin == std::string_view::npos) return {};
  const std::size_t end = found.find('"', begin + 1);
  return end == std::string_view::npos ? std::string_view()
                                       : found.substr(begin + 1, end - begin - 1);
}

void AddName(std::string_view name, std::vector<std::string>& names) {
  if (name.empty() || names.size() == FileReport::kMostNames) return;
  if (std::find(names.begin(), names.end(), name) == names.end()) names.emplace_back(name);
}

// Without what it says of where it is from: "120, as NumFrames says".
std::string Shortened(const std::string& text) { return text.substr(0, text.find(", as ")); }

const char* CauseFor(const FindingMeaning& words, std::size_t count) {
  return count == 1 || words.many == nullptr ? words.one : words.many;
}

bool TellsWhatIsFound(const FindingMeaning& words, std::size_t count) {
  return std::string_view(CauseFor(words, count)).find("{found}") != std::string_view::npos;
}

std::string Filled(std::string text, const Finding& finding) {
  ReplaceAll(text, "{found}", Shortened(finding.found));
  ReplaceAll(text, "{expected}", Shortened(finding.expected));
  ReplaceAll(text, "{scene}", finding.in_scene);
  return text;
}

std::string CauseOf(const FindingMeaning& words, const Finding& first, std::size_t count) {
  std::string cause = Filled(CauseFor(words, count), first);
  ReplaceAll(cause, "{count}", FormatInt(static_cast<std::int64_t>(count)));
  return cause;
}

std::string ConsequenceOf(const FindingEffect& effect, const Finding& finding, Action action) {
  if (effect.consequence != nullptr) return Filled(effect.consequence, finding);
  const bool is_other = action == Action::kConvert && !finding.when_converted.empty();
  return is_other ? finding.when_converted : finding.effect;
}

bool IsOfFrames(Concern concern) {
  return concern == Concern::kFrames || concern == Concern::kExcess;
}

// With what flags do about it.
std::string Joined(const std::vector<std::string>& effects, Concern concern, AskedFrames frames) {
  std::string text;
  for (const std::string& effect : effects) text += (text.empty() ? "" : " ") + effect;
  if (!IsOfFrames(concern) || frames != AskedFrames::kMissing) return text;
  return text + " --range FROM:TO leaves them out.";
}

// What is made of a rate that the host's time does not hold.
FindingEffect EffectInTime(bool is_own_time) {
  if (is_own_time) return {FindingSeverity::kNote, kShownOwnRate};
  return {FindingSeverity::kWarning, "{scene}"};
}

FindingEffect EffectOn(const FindingMeaning& words, Action action, const ActionOptions& options) {
  const bool is_of_rate = words.concern == Concern::kRate || words.concern == Concern::kTime;
  if (is_of_rate && !options.rate) {
    return {FindingSeverity::kNote, "The frame rate of the file is not asked for."};
  }
  if (words.concern == Concern::kTime && options.own_time) return EffectInTime(*options.own_time);
  if (IsOfFrames(words.concern) && options.frames == AskedFrames::kHeld) {
    return {FindingSeverity::kNote, "Only frames that are there are asked for."};
  }
  if (words.concern == Concern::kExcess && options.frames == AskedFrames::kMissing) {
    return {FindingSeverity::kWarning, "Frames that are not there are made up."};
  }
  if (words.concern == Concern::kMarkers && !options.markers) {
    return {FindingSeverity::kWarning, "No marker is written."};
  }
  if (words.concern == Concern::kSamples && !options.all_markers) {
    return {words.effects[action].severity, "Where such a marker is kept, DROPOUT is written."};
  }
  if (words.by_gaps != nullptr && options.gaps) {
    return (*words.by_gaps)[static_cast<std::size_t>(*options.gaps)];
  }
  return words.effects[action];
}

bool ComesBefore(const ReportedFinding& left, const ReportedFinding& right) {
  if (left.severity != right.severity) return left.severity > right.severity;
  return std::tie(left.line, left.column) < std::tie(right.line, right.column);
}

}  // namespace

std::size_t FileReport::Count(FindingSeverity severity) const {
  std::size_t count = 0;
  for (const ReportedFinding& finding : findings) {
    if (finding.severity == severity) count += finding.count;
  }
  return count;
}

void FileReport::Take(FileReport other) {
  std::move(other.findings.begin(), other.findings.end(), std::back_inserter(findings));
  std::stable_sort(findings.begin(), findings.end(), ComesBefore);
}

FileReport FileReport::Without(std::string_view code) const {
  FileReport others = *this;
  std::erase_if(others.findings,
                [code](const ReportedFinding& finding) { return finding.code == code; });
  return others;
}

FileReport ReportOn(const CheckedFile& checked, Action action, const ActionOptions& options) {
  FileReport report{checked.file, checked.kind, action, {}};
  std::map<std::string_view, std::size_t> places;  // in report.findings, by code
  std::vector<std::vector<std::string>> effects;   // of each of them
  for (const Finding& finding : checked.findings.Sorted()) {
    const FindingMeaning* const words = FindMeaning(finding.rule.code);
    if (words == nullptr || !words->effects[action].severity) continue;
    const FindingEffect effect = EffectOn(*words, action, options);
    const auto [place, is_new] = places.emplace(finding.rule.code, report.findings.size());
    if (is_new) {
      const std::size_t count = checked.findings.Totals().at(finding.rule.code).count;
      report.findings.push_back({finding.rule.code,
                                 *effect.severity,
                                 count,
                                 finding.line,
                                 finding.column,
                                 {},
                                 CauseOf(*words, finding, count),
                                 ""});
      effects.emplace_back();
    }
    ReportedFinding& reported = report.findings[place->second];
    std::vector<std::string>& told = effects[place->second];
    AddName(ConsequenceOf(effect, finding, action), told);
    reported.consequence = Joined(told, words->concern, options.frames);
    if (TellsWhatIsFound(*words, reported.count)) continue;
    const std::string_view name = NameIn(finding.found);
    const bool may_be_word = name.empty() && words->many != nullptr;
    AddName(may_be_word ? WordIn(finding.found) : name, reported.names);
  }
  std::stable_sort(report.findings.begin(), report.findings.end(), ComesBefore);
  return report;
}

}  // namespace orvane
