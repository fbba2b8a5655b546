#include "inspect/report/rewrite_check.h"

#include "formats/text/numbers.h"
#include "inspect/report/rewrite_rules.h"

namespace orvane {
namespace {

constexpr FindingPlace kNoPlace{0, 0};

consteval const FindingRule& Rule(std::string_view code) {
  return FindRule(rewriting::kRules, code);
}

void AddUnselected(const std::vector<UnknownName>& names, FindingList& findings) {
  std::string question;
  for (const UnknownName& each : names) {
    if (each.similar.empty()) continue;
    question += (question.empty() ? "; did you mean " : " or ") + Quote(each.similar);
  }
  const std::string effect =
      "Nothing is written" +
      (question.empty() ? "; \"orvane info\" lists the names." : question + "?");
  for (const UnknownName& each : names) {
    findings.Add(Rule("rewrite-select-unknown"), kNoPlace, {Quote(each.name), "", effect});
  }
}

void AddNames(const FindingRule& rule, const std::vector<std::string>& names,
              FindingList& findings) {
  for (const std::string& name : names) findings.Add(rule, kNoPlace, {Quote(name), "", ""});
}

void AddResampled(const ResampledFrames& frames, FindingList& findings) {
  findings.Add(
      Rule("rewrite-resampled"), kNoPlace,
      {CountOf(frames.count, "frame"), FormatInt(static_cast<std::int64_t>(frames.between)),
       "They are interpolated " + frames.manner +
           "; where a marker has a gap at either "
           "side, it has one there."});
}

}  // namespace

CheckedFile CheckRewrite(const std::string& name, std::string_view kind,
                         const RewriteCircumstances& circumstances) {
  CheckedFile checked{name, kind, "", {}};
  FindingList& findings = checked.findings;
  AddUnselected(circumstances.unselected, findings);
  AddNames(Rule("rewrite-rename-unknown"), circumstances.unrenamed, findings);
  AddNames(Rule("rewrite-select-ancestors"), circumstances.ancestors, findings);
  if (!circumstances.feet.empty()) {
    findings.Add(Rule("rewrite-feet"), kNoPlace,
                 {circumstances.feet, "",
                  "A foot is taken as 304.8 mm and a yard as 914.4 mm; an import takes 2.1167 mm "
                  "and 0.7056 mm."});
  }
  if (circumstances.resampled) AddResampled(*circumstances.resampled, findings);
  AddNames(Rule("rewrite-scale-lost"), circumstances.scaled, findings);
  if (circumstances.is_skeleton_lost) {
    findings.Add(Rule("rewrite-skeleton-lost"), kNoPlace, {"", "", ""});
  }
  return checked;
}

}  // namespace orvane
