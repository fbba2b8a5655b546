#include "inspect/mapping/name_suggestion.h"

#include <algorithm>
#include <map>
#include <optional>
#include <set>
#include <utility>

#include "formats/mnm/mapping_lines.h"
#include "formats/mnm/standard_markers.h"
#include "inspect/mapping/marker_synonyms.h"
#include "inspect/mapping/marker_words.h"
#include "inspect/mapping/underscored_subject.h"

namespace orvane {
namespace {

struct Role {
  std::string standard;
  NameReason reason;
};

// How long the subject is, with its underscore, that all names without a colon begin with.
std::size_t LengthOfSharedSubject(std::span<const std::string> names) {
  std::vector<std::string> undivided;
  for (const std::string& name : names) {
    if (CannotBeMapped(name) || !DivideName(name).subject.empty()) continue;
    undivided.push_back(InSmallLetters(name));
  }
  return SharedSubject({undivided.begin(), undivided.end()}).size();
}

std::optional<std::string> StandardMarkerInAnyCase(std::string_view marker) {
  std::string capitals = InSmallLetters(marker);
  for (char& letter : capitals) {
    if ('a' <= letter && letter <= 'z') letter = static_cast<char>(letter - 'a' + 'A');
  }
  return IsStandardMarker(capitals) ? std::optional(capitals) : std::nullopt;
}

std::optional<Role> RoleOf(std::string_view name, std::string_view marker) {
  if (IsStandardMarker(name)) return Role{std::string(name), NameReason::kSame};
  if (IsStandardMarker(marker)) return Role{std::string(marker), NameReason::kSubject};
  if (auto standard = StandardMarkerInAnyCase(marker)) return Role{*standard, NameReason::kCase};
  if (auto standard = StandardMarkerFor(WordsOf(marker))) {
    return Role{*standard, NameReason::kSynonym};
  }
  return std::nullopt;
}

// The markers that name one standard marker, in the surest way of all that do.
struct Candidates {
  NameReason reason = NameReason::kSynonym;
  std::vector<std::size_t> markers;

  // Returns the markers that do so less surely.
  std::vector<std::size_t> Add(std::size_t marker, NameReason how) {
    if (markers.empty() || how < reason) {
      reason = how;
      return std::exchange(markers, {marker});
    }
    if (how > reason) return {marker};
    markers.push_back(marker);
    return {};
  }
};

class Suggesting {
 public:
  Suggesting(std::span<const std::string> names, const std::string& subject)
      : names_(names), subject_(subject), shared_(LengthOfSharedSubject(names)) {}

  NameSuggestion Run() {
    for (std::size_t marker = 0; marker < names_.size(); ++marker) Look(marker);
    for (std::size_t step = 0; step < kMarkerSteps; ++step) {
      const MarkerStep& wanted = MarkerStepAt(step, {});
      const MarkerStep& with_stick = MarkerStepAt(step, {true, true});
      if (&with_stick != &wanted && IsAnyNamed(with_stick)) {
        Answer(with_stick);
      } else {
        Answer(wanted);
      }
    }
    PutAside();
    return std::move(result_);
  }

 private:
  void Look(std::size_t marker) {
    const std::string& name = names_[marker];
    auto [subject, rest] = Divide(name);
    if (!subject.empty()) subject.remove_suffix(1);  // the colon or the underscore
    AddSubject(subject);
    if (!subject_.empty() && subject != subject_) return;
    if (CannotBeMapped(name)) return result_.unmappable.push_back(marker);
    const auto role = RoleOf(name, rest);
    if (!role) return result_.without_role.push_back(marker);
    const auto less_sure = candidates_[role->standard].Add(marker, role->reason);
    result_.without_role.insert(result_.without_role.end(), less_sure.begin(), less_sure.end());
  }

  [[nodiscard]] SubjectAndMarker Divide(std::string_view name) const {
    const SubjectAndMarker divided = DivideName(name);
    if (!divided.subject.empty() || CannotBeMapped(name)) return divided;
    return {name.substr(0, shared_), name.substr(shared_)};
  }

  void AddSubject(std::string_view subject) {
    if (subject.empty() || !known_subjects_.emplace(subject).second) return;
    result_.subjects.emplace_back(subject);
  }

  [[nodiscard]] bool IsAnyNamed(const MarkerStep& step) const {
    return std::any_of(step.markers.begin(), step.markers.end(), [this](const auto& marker) {
      return candidates_.contains(std::string(marker.name));
    });
  }

  void Answer(const MarkerStep& step) {
    for (std::size_t index = 0; index < step.Count(); ++index) {
      const std::string standard(step.markers[index].name);
      const auto found = candidates_.extract(standard);
      if (found.empty()) {
        if (!step.may_be_skipped) result_.missing.push_back(standard);
      } else if (const Candidates& named = found.mapped(); named.markers.size() == 1) {
        result_.sure.push_back({standard, named.markers[0], named.reason});
      } else {
        result_.ambiguous.push_back({standard, named.markers});
      }
    }
  }

  // What names a standard marker that is not asked for: a wrist's two where it has a stick.
  void PutAside() {
    std::vector<std::size_t>& without_role = result_.without_role;
    for (const auto& [standard, named] : candidates_) {
      without_role.insert(without_role.end(), named.markers.begin(), named.markers.end());
    }
    std::sort(without_role.begin(), without_role.end());
  }

  std::span<const std::string> names_;
  const std::string& subject_;
  const std::size_t shared_;
  std::map<std::string, Candidates> candidates_;  // by standard name
  std::set<std::string, std::less<>> known_subjects_;
  NameSuggestion result_;
};

}  // namespace

NameSuggestion SuggestByNames(std::span<const std::string> names, const std::string& subject) {
  return Suggesting(names, subject).Run();
}

}  // namespace orvane
