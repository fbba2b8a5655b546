#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/check/findings.h"
#include "inspect/report/action.h"

// What is told of a finding before an action: how much it matters to it, the cause in the file, and
// what becomes of it.

namespace orvane {

// How a code stands to one action.
struct FindingEffect {
  // Nothing when the action never meets the code, or nothing is told of it there.
  std::optional<FindingSeverity> severity;
  // One sentence, with {found} and {expected} as in a cause, and {scene} for what the check has
  // written of scenes; null for the one that it has written for this finding.
  const char* consequence = nullptr;
};

// How it stands to all of them.
class FindingEffects {
 public:
  // The same to `actions`, and nothing to the others.
  template <std::size_t kSize>
  constexpr FindingEffects(const std::array<Action, kSize>& actions, const FindingEffect& effect) {
    for (const Action action : actions) (*this)[action] = effect;
  }

  constexpr const FindingEffect& operator[](Action action) const {
    return effects_[static_cast<std::size_t>(action)];
  }

  // The same, but something else to `action`; to a look also to rewriting, which takes what a look
  // shows: what differs there is said behind it.
  constexpr FindingEffects But(Action action, FindingSeverity severity,
                               const char* consequence = nullptr) const {
    FindingEffects changed = *this;
    changed[action] = {severity, consequence};
    if (action == Action::kInspect) changed[Action::kRewrite] = changed[action];
    return changed;
  }

 private:
  constexpr FindingEffect& operator[](Action action) {
    return effects_[static_cast<std::size_t>(action)];
  }

  std::array<FindingEffect, kActions> effects_{};
};

// To all that is done with a motion file, a marker file, and a mapping.
constexpr FindingEffects InMotion(FindingSeverity severity, const char* consequence = nullptr) {
  return {std::array{Action::kInspect, Action::kImport, Action::kApply, Action::kRewrite},
          {severity, consequence}};
}
constexpr FindingEffects InMarkers(FindingSeverity severity, const char* consequence = nullptr) {
  return {std::array{Action::kInspect, Action::kImport, Action::kApply, Action::kConvert,
                     Action::kRewrite},
          {severity, consequence}};
}
constexpr FindingEffects InMappings(FindingSeverity severity, const char* consequence = nullptr) {
  return {std::array{Action::kInspect, Action::kConvert}, {severity, consequence}};
}

// What a finding is about, as far as an action may not ask for it.
enum class Concern {
  kFile,     // what every action asks for
  kRate,     // the frame rate
  kTime,     // what the host's time makes of the frame rate, where viewers may be told it
  kFrames,   // frames that are announced and not there, or the other way round
  kExcess,   // far more frames announced than are there
  kMarkers,  // that no marker is left
  kSamples,  // of a marker that may be dropped
  kSaving,   // numbers with which what they come into cannot be saved
};

// Of a number that is infinite in a scene.
inline constexpr char kCannotBeSaved[] =
    "It is taken as infinite: a scene that it gets into cannot be saved.";

// What becomes of such a number where a file is written, and of rates, and of frames that the
// header does not count as they are.
inline constexpr char kWrittenInfinite[] =
    "It is taken as infinite, and written as a number that is.";
inline constexpr char kWrittenAsSaid[] = "It is written as the file says it.";
inline constexpr char kFramesWritten[] =
    "The frames that are there are written, and NumFrames says how many.";

// Of a rate that viewers are told, and the host's time does not hold.
inline constexpr char kShownOwnRate[] = "{scene} Viewers play the rate of the file.";

// Such a rate: the file may be looked at as it is; what it is applied to keeps the host's time.
constexpr FindingEffects InTime(const FindingEffects& others) {
  return others.But(Action::kImport, FindingSeverity::kNote, kShownOwnRate)
      .But(Action::kApply, FindingSeverity::kWarning, "{scene}");
}

// A rate that stays what it is in a file that is rewritten.
constexpr FindingEffects KeptAsSaid(const FindingEffects& others, FindingSeverity severity) {
  return others.But(Action::kRewrite, severity, kWrittenAsSaid);
}

// How a code stands to an action that puts a file into a scene, by what viewers are shown of gaps:
// hidden, held, at the origin.
using GapEffects = std::array<FindingEffect, 3>;

struct FindingMeaning {
  std::string_view code;
  // The cause, one sentence without its full stop. {found} and {expected} stand for those of the
  // first finding, up to ", as "; in `many`, {count} for the number of findings.
  const char* one;
  const char* many;  // null for a code that one file has once at most
  FindingEffects effects;
  Concern concern = Concern::kFile;
  // What the check has written for each finding is told, as long as it is no more than so many
  // different sentences: the consequence above is for more.
  std::size_t most_told = 0;
  const GapEffects* by_gaps = nullptr;  // in the place of the effects, where that is said
};

// Those of all codes, by kind of file.
std::span<const FindingMeaning> HtrFindingMeanings();
std::span<const FindingMeaning> TrcFindingMeanings();
std::span<const FindingMeaning> MnmFindingMeanings();

// Those of a file and the scene that it is applied to.
std::span<const FindingMeaning> ApplyFindingMeanings();

// Those of frames that are cut out of a file.
std::span<const FindingMeaning> CutFindingMeanings();

// Those of a skeleton that becomes a motion file.
std::span<const FindingMeaning> ExportFindingMeanings();

// Those of a file that becomes another one.
std::span<const FindingMeaning> RewriteFindingMeanings();

// The codes of all findings, sorted.
std::vector<std::string> AllFindingCodes();

// Those of `code`; null when no finding has it.
const FindingMeaning* FindMeaning(std::string_view code);

}  // namespace orvane
