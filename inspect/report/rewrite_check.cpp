#include "inspect/report/rewrite_check.h"

#include <algorithm>
#include <cassert>

#include "formats/text/numbers.h"
#include "inspect/check/trc_rules.h"
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
  const std::string gaps =
      frames.has_rotations ? "." : "; where a marker has a gap at either side, it has one there.";
  findings.Add(
      Rule("rewrite-resampled"), kNoPlace,
      {CountOf(frames.count, "frame"), FormatInt(static_cast<std::int64_t>(frames.between)),
       "They are interpolated " + frames.manner + gaps});
}

const FindingRule& RuleOf(std::string_view code) {
  const auto rule = std::find_if(rewriting::kRules.begin(), rewriting::kRules.end(),
                                 [code](const FindingRule& each) { return each.code == code; });
  assert(rule != rewriting::kRules.end());
  return *rule;
}

void AddLoss(const RewriteLoss& loss, FindingList& findings) {
  const FindingRule& rule = RuleOf(loss.code);
  for (const std::string& name : loss.names) {
    findings.Add(rule, kNoPlace, {Quote(name), "", loss.effect});
  }
  if (loss.names.empty()) findings.Add(rule, kNoPlace, {loss.found, "", loss.effect});
}

}  // namespace

CheckedFile CheckRewrite(const std::string& name, std::string_view kind,
                         const RewriteCircumstances& circumstances) {
  CheckedFile checked{name, kind, "", {}};
  FindingList& findings = checked.findings;
  AddUnselected(circumstances.unselected, findings);
  AddNames(Rule("rewrite-rename-unknown"), circumstances.unrenamed, findings);
  AddNames(Rule("rewrite-select-ancestors"), circumstances.ancestors, findings);
  AddNames(trc::Rule("trc-marker-gaps"), circumstances.with_gaps, findings);
  AddNames(trc::Rule("trc-marker-never-seen"), circumstances.never_seen, findings);
  if (circumstances.stands_along_y) findings.Add(Rule("rewrite-up-doubtful"), kNoPlace, {});
  if (!circumstances.feet.empty()) {
    findings.Add(Rule("rewrite-feet"), kNoPlace,
                 {circumstances.feet, "",
                  "A foot is taken as 304.8 mm and a yard as 914.4 mm; an import takes 2.1167 mm "
                  "and 0.7056 mm."});
  }
  if (circumstances.resampled) AddResampled(*circumstances.resampled, findings);
  for (const RewriteLoss& loss : circumstances.losses) AddLoss(loss, findings);
  return checked;
}

}  // namespace orvane
