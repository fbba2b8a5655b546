#include "inspect/report/finding_words.h"

#include <unordered_map>

namespace orvane {
namespace {

using WordsByCode = std::unordered_map<std::string_view, const FindingMeaning*>;

WordsByCode Gather() {
  WordsByCode all;
  for (const auto& words :
       {HtrFindingMeanings(), TrcFindingMeanings(), MnmFindingMeanings(), ApplyFindingMeanings(),
        CutFindingMeanings(), ExportFindingMeanings()}) {
    for (const FindingMeaning& each : words) all.emplace(each.code, &each);
  }
  return all;
}

}  // namespace

const FindingMeaning* FindMeaning(std::string_view code) {
  static const WordsByCode all = Gather();
  const auto found = all.find(code);
  return found == all.end() ? nullptr : found->second;
}

}  // namespace orvane
