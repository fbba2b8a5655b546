#include "inspect/report/selection_check.h"

#include "inspect/report/apply_rules.h"
#include "inspect/report/export_rules.h"

namespace orvane {
namespace {

constexpr FindingPlace kNoPlace{0, 0};

const FindingRule& RuleFor(Action action, bool is_any_selected) {
  if (action == Action::kExport) return FindRule(exporting::kRules, "export-select-unknown");
  const bool comes_to_nothing = action == Action::kApply && !is_any_selected;
  return comes_to_nothing ? FindRule(apply::kRules, "apply-select-nothing")
                          : FindRule(apply::kRules, "apply-select-unknown");
}

std::string EffectOn(Action action, bool is_any_selected) {
  if (action == Action::kExport) return "Nothing is exported";
  if (action == Action::kImport) return "New nodes are made all the same";
  return is_any_selected ? "The others are selected" : "Nothing is imported";
}

}  // namespace

CheckedFile CheckSelection(const std::string& name, std::string_view kind, Action action,
                           const std::vector<UnknownName>& unknown, bool is_any_selected) {
  CheckedFile checked{name, kind, "", {}};
  std::string effect = EffectOn(action, is_any_selected);
  std::string question;
  for (const UnknownName& each : unknown) {
    if (each.similar.empty()) continue;
    question += (question.empty() ? "; did you mean " : " or ") + Quote(each.similar);
  }
  effect += question.empty() ? "; \"orvane scene\" lists the names." : question + "?";
  for (const UnknownName& each : unknown) {
    checked.findings.Add(RuleFor(action, is_any_selected), kNoPlace,
                         {Quote(each.name), "", effect});
  }
  return checked;
}

}  // namespace orvane
