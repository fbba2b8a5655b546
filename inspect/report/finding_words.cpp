#include "inspect/report/finding_words.h"

#include <map>

namespace orvane {
namespace {

using WordsByCode = std::map<std::string_view, const FindingMeaning*>;

WordsByCode Gather() {
  WordsByCode all;
  for (const auto& words :
       {HtrFindingMeanings(), TrcFindingMeanings(), MnmFindingMeanings(), ApplyFindingMeanings(),
        CutFindingMeanings(), ExportFindingMeanings(), RewriteFindingMeanings()}) {
    for (const FindingMeaning& each : words) all.emplace(each.code, &each);
  }
  return all;
}

const WordsByCode& AllWords() {
  static const WordsByCode all = Gather();
  return all;
}

}  // namespace

std::vector<std::string> AllFindingCodes() {
  std::vector<std::string> codes;
  for (const auto& [code, words] : AllWords()) codes.emplace_back(code);
  return codes;
}

const FindingMeaning* FindMeaning(std::string_view code) {
  const WordsByCode& all = AllWords();
  const auto found = all.find(code);
  return found == all.end() ? nullptr : found->second;
}

}  // namespace orvane
