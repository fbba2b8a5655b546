#include "inspect/report/apply_check.h"

#include <algorithm>
#include <cmath>
#include <tuple>
#include <utility>

#include "formats/text/numbers.h"
#include "inspect/check/rates.h"
#include "inspect/compare/motion_comparison.h"
#include "inspect/report/apply_rules.h"

namespace orvane {
namespace {

using Start = ApplyPlan::Start;

constexpr FindingPlace kNoPlace{0, 0};

double Distance(const Vector3& a, const Vector3& b) {
  return std::hypot(a.x() - b.x(), a.y() - b.y(), a.z() - b.z());
}

BoneDifference Compare(const ApplyPair& pair, const BoneShape& segment, const BoneShape& bone) {
  BoneDifference difference{pair, std::abs(segment.length - bone.length), 0.0};
  if (segment.base && bone.base) {
    difference.millimeters = std::max(difference.millimeters,
                                      Distance(segment.base->translation, bone.base->translation));
    difference.degrees = DegreesBetween(segment.base->rotation, bone.base->rotation);
  }
  return difference;
}

bool AnyNameMatches(const AppliedFile& file, const ApplyScene& scene, const ApplyPlan& plan) {
  return std::any_of(plan.pairs.begin(), plan.pairs.end(), [&](const ApplyPair& pair) {
    return file.items[pair.item].name == scene.nodes[pair.node].name;
  });
}

// "half speed", or how many times its speed.
std::string SpeedOf(double file_rate, double scene_rate) {
  const double speed = scene_rate / file_rate;
  if (speed == 0.5) return "half speed";
  if (speed == 2.0) return "double speed";
  return TellApart(speed, 1.0) + " times its speed";
}

// Gathers what is found of one file.
class ApplyCheck {
 public:
  ApplyCheck(const std::string& name, std::string_view kind) : checked_{name, kind, "", {}} {}

  void CheckNames(const AppliedFile& file, const ApplyScene& scene, const ApplyPlan& plan,
                  bool selected_only) {
    const bool is_motion = checked_.kind == "HTR";
    if (plan.start != Start::kFound) {
      // Of a skeleton the plug-in says so itself, and imports nothing.
      if (!is_motion) AddNothingSelected(selected_only);
      return;
    }
    if (!plan.file_only.empty()) {
      const std::string effect = LeftOut(file, scene, plan, selected_only);
      if (!AnyNameMatches(file, scene, plan)) {
        return Add(FindRule(apply::kRules, "apply-nothing-matches"), "", "", effect);
      }
      AddMissing(file, plan, effect);
    }
    AddNotBelowStart(file, plan);
    for (const std::size_t node : plan.scene_only) {
      Add(FindRule(apply::kRules, "apply-name-missing-in-file"), Quote(scene.nodes[node].name));
    }
    if (is_motion && !plan.pairs.empty()) CompareRoot(file, scene, plan);
  }

  // The object that markers without one of their names are given, when that is several.
  void CheckSharedNode(const AppliedFile& file, const ApplyScene& scene, const ApplyPlan& plan) {
    if (plan.file_only.empty() || scene.selected.empty()) return;
    std::vector<std::size_t> sharers = plan.file_only;
    for (const ApplyPair& pair : plan.pairs) {
      if (pair.node == scene.selected.back()) sharers.push_back(pair.item);
    }
    if (sharers.size() < 2) return;
    const std::string& node = scene.nodes[scene.selected.back()].name;
    const std::size_t last = *std::max_element(sharers.begin(), sharers.end());
    Add(FindRule(apply::kRules, "apply-markers-share-node"),
        FormatInt(static_cast<std::int64_t>(sharers.size())), Quote(node),
        "Each takes the place of the one before it, so that the node moves as " +
            Quote(file.items[last].name) + ", the last of them in the file.");
  }

  void CompareAll(const AppliedFile& file, const ApplyScene& scene, const ApplyPlan& plan) {
    for (const BoneDifference& each : CompareBones(file, scene, plan)) {
      Add(FindRule(apply::kRules, "apply-bone-differs"), Quote(scene.nodes[each.pair.node].name),
          Describe(each));
    }
  }

  void CompareRates(const ApplyCircumstances& how) {
    if (!how.scene_rate || how.file_rate <= 0.0) return;
    const double rate = *how.scene_rate;
    Add(FindRule(apply::kRules, "apply-rate-differs"), FormatShortest(how.file_rate),
        TellApart(rate, how.file_rate),
        "The motion plays at " + SpeedOf(how.file_rate, rate) +
            "; --frame-rate file gives the scene the rate of the file.");
  }

  void CheckRange(const ApplyCircumstances& how) {
    if (!how.range_from || *how.range_from == how.first_frame) return;
    const std::string from = FormatInt(*how.range_from);
    const std::string first = FormatInt(how.first_frame);
    Add(FindRule(apply::kRules, "apply-range-moves"), from, first,
        "A range of a motion file says when, and not what: frame " + first + " is keyed in frame " +
            from + ", and those behind it follow.");
  }

  void CheckTimeChange(const ApplyCircumstances& how) {
    if (!how.time_change || how.time_change->host_rate == how.time_change->scene_rate) return;
    const TimeChange& change = *how.time_change;
    constexpr double kMinute = 60.0;
    const double minute = kMinute * change.scene_rate / change.host_rate;
    Add(FindRule(apply::kRules, "apply-scene-time"), FormatShortest(change.scene_rate),
        change.file_rate ? "the file has " + FormatShortest(*change.file_rate)
                         : std::string("the host's time is asked for"),
        "All of the scene goes by the host's time: a minute of what was there lasts " +
            TellApart(minute, kMinute) + " s.");
  }

  CheckedFile Finish() { return std::move(checked_); }

 private:
  void Add(const FindingRule& rule, std::string found, std::string expected = "",
           std::string effect = "") {
    checked_.findings.Add(rule, kNoPlace,
                          {std::move(found), std::move(expected), std::move(effect)});
  }

  void AddNothingSelected(bool selected_only) {
    Add(FindRule(apply::kRules, "apply-nothing-selected"), "", "",
        std::string(selected_only ? "Nothing is imported" : "Every marker gets a new object") +
            "; --into SCENE --select NAME selects in a scene of yours.");
  }

  // What becomes of names that are not in the scene.
  std::string LeftOut(const AppliedFile& file, const ApplyScene& scene, const ApplyPlan& plan,
                      bool selected_only) const {
    const bool any_matches = AnyNameMatches(file, scene, plan);
    if (checked_.kind == "HTR") {
      if (any_matches) {
        return "What has such a name is left out; a bone counts below the bone of its parent, and "
               "the case of letters counts.";
      }
      return "The motion of " + Quote(file.items[plan.pairs.front().item].name) +
             " goes to the node that is selected, and all other motion is left out.";
    }
    const std::string marker = any_matches ? "Such a marker " : "Every marker ";
    const std::string looked_at = "; selected objects and their children are looked at.";
    if (!selected_only) return marker + "gets a new object" + looked_at;
    return marker + "moves the last selected object, " +
           Quote(scene.nodes[scene.selected.back()].name) + looked_at;
  }

  void AddMissing(const AppliedFile& file, const ApplyPlan& plan, const std::string& effect) {
    for (const std::size_t item : plan.file_only) {
      Add(FindRule(apply::kRules, "apply-name-missing-in-scene"), Quote(file.items[item].name), "",
          effect);
    }
  }

  void AddNotBelowStart(const AppliedFile& file, const ApplyPlan& plan) {
    if (plan.not_below_start.empty()) return;
    std::string effect =
        plan.not_below_start.size() == 1 ? "It moves nothing" : "They move nothing";
    if (file.root != kNoParent) {
      effect += "; select the bone of " + Quote(file.items[file.root].name) +
                " to start at the root of the file";
    }
    const std::string start = Quote(file.items[plan.pairs.front().item].name);
    for (const std::size_t item : plan.not_below_start) {
      Add(FindRule(apply::kRules, "apply-start-below-root"), Quote(file.items[item].name), start,
          effect + ".");
    }
  }

  void CompareRoot(const AppliedFile& file, const ApplyScene& scene, const ApplyPlan& plan) {
    const ApplyPair& root = plan.pairs.front();
    const std::string& name = file.items[root.item].name;
    if (name == scene.nodes[root.node].name) return;
    Add(FindRule(apply::kRules, "apply-root-name-differs"), Quote(scene.nodes[root.node].name),
        Quote(name));
  }

  CheckedFile checked_;
};

}  // namespace

std::vector<BoneDifference> CompareBones(const AppliedFile& file, const ApplyScene& scene,
                                         const ApplyPlan& plan) {
  std::vector<BoneDifference> differences;
  for (const ApplyPair& pair : plan.pairs) {
    const auto& segment = file.items[pair.item].shape;
    const auto& bone = scene.nodes[pair.node].shape;
    if (!segment || !bone) continue;
    const BoneDifference difference = Compare(pair, *segment, *bone);
    const bool is_same =
        difference.millimeters <= kSameMillimeters && difference.degrees <= kSameDegrees;
    if (!is_same) differences.push_back(difference);
  }
  std::stable_sort(differences.begin(), differences.end(),
                   [](const BoneDifference& left, const BoneDifference& right) {
                     return std::tie(left.millimeters, left.degrees) >
                            std::tie(right.millimeters, right.degrees);
                   });
  return differences;
}

std::string Describe(const BoneDifference& difference) {
  const std::string length = FormatDouble(difference.millimeters, 1) + " mm";
  const std::string angle = FormatDouble(difference.degrees, 1) + " degrees";
  if (difference.degrees <= kSameDegrees) return length;
  return difference.millimeters <= kSameMillimeters ? angle : length + " and " + angle;
}

CheckedFile CheckApply(const std::string& name, std::string_view kind, const AppliedFile& file,
                       const ApplyScene& scene, const ApplyPlan& plan,
                       const ApplyCircumstances& how) {
  ApplyCheck check(name, kind);
  check.CheckNames(file, scene, plan, how.selected_only);
  if (kind == "TRC" && how.selected_only) check.CheckSharedNode(file, scene, plan);
  check.CompareAll(file, scene, plan);
  if (!plan.pairs.empty()) check.CompareRates(how);
  check.CheckRange(how);
  check.CheckTimeChange(how);
  return check.Finish();
}

CheckedFile CheckImport(const std::string& name, std::string_view kind,
                        const ApplyCircumstances& how) {
  ApplyCheck check(name, kind);
  check.CompareRates(how);
  check.CheckRange(how);
  check.CheckTimeChange(how);
  return check.Finish();
}

}  // namespace orvane
