#include "inspect/report/skin_check.h"

#include <string_view>

#include "formats/text/numbers.h"
#include "inspect/report/action.h"
#include "inspect/report/export_rules.h"

namespace orvane {
namespace {

constexpr FindingPlace kNoPlace{0, 0};
constexpr double kSecondsInMinute = 60.0;

consteval const FindingRule& Rule(std::string_view code) {
  return FindRule(exporting::kRules, code);
}

// "59.94", and of a rate of video no more digits.
std::string RateText(double rate) {
  std::string text = FormatDouble(rate, 3);
  text.erase(text.find_last_not_of('0') + 1);
  if (text.back() == '.') text.pop_back();
  return text;
}

void TellOfRate(const TakenSkins& taken, FindingList& findings) {
  const std::string rate = RateText(taken.rate);
  if (taken.is_rate_assumed) {
    findings.Add(Rule("export-rate-assumed"), kNoPlace,
                 {"", "", rate + " frames a second are taken; --rate takes others."});
  }
  if (taken.rate == taken.written_rate) return;
  const double minute = kSecondsInMinute * taken.rate / taken.written_rate;
  findings.Add(Rule("export-rate-cut"), kNoPlace,
               {Quote(rate), "",
                "It says " + FormatInt(taken.written_rate) + ": a minute lasts " +
                    FormatDouble(minute, 2) + " s there."});
}

}  // namespace

CheckedFile CheckSkins(const std::string& name, const TakenSkins& taken) {
  CheckedFile checked{name, kSceneKind, "", {}};
  TellOfRate(taken, checked.findings);
  if (taken.keys_between > 0) {
    checked.findings.Add(Rule("export-keys-between"), kNoPlace, {"", "", ""});
    checked.findings.AddMore(Rule("export-keys-between"), kNoPlace, taken.keys_between - 1);
  }
  for (const std::string& other : taken.other_animations) {
    checked.findings.Add(
        Rule("export-animation-chosen"), kNoPlace,
        {Quote(other), "", Quote(taken.animation) + " is taken; --clip NAME takes another."});
  }
  for (const std::string& joint : taken.renamed) {
    checked.findings.Add(Rule("export-joint-renamed"), kNoPlace, {Quote(joint), "", ""});
  }
  return checked;
}

}  // namespace orvane
