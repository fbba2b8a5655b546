#include "inspect/report/report.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
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

void AddName(std::string_view name, std::vector<std::string>& names,
             std::size_t most = FileReport::kMostNames) {
  if (name.empty() || names.size() == most) return;
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
  if (words.concern == Concern::kSaving && !options.all_numbers) {
    return {FindingSeverity::kWarning, words.effects[action].consequence};
  }
  if (words.by_gaps != nullptr && options.gaps) {
    return (*words.by_gaps)[static_cast<std::size_t>(*options.gaps)];
  }
  return words.effects[action];
}

// What is told of nothing but lines behind the announced frames.
FindingEffect WhenBehind(const FindingEffect& effect, Concern concern) {
  const bool is_of_all = effect.severity == FindingSeverity::kError && concern != Concern::kSaving;
  if (is_of_all || effect.severity == FindingSeverity::kNote) return effect;
  return {FindingSeverity::kNote,
          "It stands behind the frames that the header announces, and does not come out."};
}

// The findings of a code that an action is told of.
struct CodeFindings {
  const FindingMeaning* words;
  std::vector<const Finding*> kept;  // not empty
  std::size_t count = 0;
  bool comes_out = true;  // what they are about, at least in part
};

// Nothing when others of its code come out, and it does not.
std::optional<CodeFindings> StartWith(const Finding& finding, const FindingMeaning& words,
                                      const FindingList& findings, Action action) {
  const FindingList::Total& total = findings.Totals().at(finding.rule.code);
  if (!TakesAnnouncedFrames(action)) return CodeFindings{&words, {}, total.count, true};
  if (total.behind == total.count) return CodeFindings{&words, {}, total.count, false};
  if (finding.is_behind) return std::nullopt;
  return CodeFindings{&words, {}, total.count - total.behind, true};
}

// In the order of the first of each code.
std::vector<CodeFindings> GroupByCode(const std::vector<Finding>& sorted,
                                      const FindingList& findings, Action action) {
  std::vector<CodeFindings> groups;
  std::map<std::string_view, std::size_t> places;  // in `groups`, by code
  for (const Finding& finding : sorted) {
    const FindingMeaning* const words = FindMeaning(finding.rule.code);
    if (words == nullptr || !words->effects[action].severity) continue;
    auto group = StartWith(finding, *words, findings, action);
    if (!group) continue;
    const auto [place, is_new] = places.emplace(finding.rule.code, groups.size());
    if (is_new) groups.push_back(std::move(*group));
    groups[place->second].kept.push_back(&finding);
  }
  return groups;
}

// What becomes of them, each once. What the check has written is told where a row of the words
// asks for it, and it is not too much.
std::vector<std::string> ConsequencesOf(const CodeFindings& group, const FindingEffect& effect,
                                        Action action) {
  const bool is_usual = effect.consequence == group.words->effects[action].consequence;
  if (is_usual && group.words->most_told > 0 && group.kept.size() == group.count) {
    std::vector<std::string> each;
    for (const Finding* const finding : group.kept) {
      AddName(finding->effect, each, group.words->most_told + 1);
    }
    if (each.size() <= group.words->most_told) return each;
  }
  std::vector<std::string> told;
  for (const Finding* const finding : group.kept) {
    AddName(ConsequenceOf(effect, *finding, action), told);
  }
  return told;
}

std::vector<std::string> NamesIn(const CodeFindings& group) {
  std::vector<std::string> names;
  if (TellsWhatIsFound(*group.words, group.count)) return names;
  for (const Finding* const finding : group.kept) {
    const std::string_view name = NameIn(finding->found);
    const bool may_be_word = name.empty() && group.words->many != nullptr;
    AddName(may_be_word ? WordIn(finding->found) : name, names);
  }
  return names;
}

ReportedFinding Reported(const CodeFindings& group, Action action, const ActionOptions& options) {
  const FindingEffect asked = EffectOn(*group.words, action, options);
  const FindingEffect effect = group.comes_out ? asked : WhenBehind(asked, group.words->concern);
  const Finding& first = *group.kept.front();
  return {group.words->code,
          *effect.severity,
          group.count,
          first.line,
          first.column,
          NamesIn(group),
          CauseOf(*group.words, first, group.count),
          Joined(ConsequencesOf(group, effect, action), group.words->concern, options.frames)};
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
  const std::vector<Finding> sorted = checked.findings.Sorted();
  for (const CodeFindings& group : GroupByCode(sorted, checked.findings, action)) {
    report.findings.push_back(Reported(group, action, options));
  }
  std::stable_sort(report.findings.begin(), report.findings.end(), ComesBefore);
  return report;
}

}  // namespace orvane
