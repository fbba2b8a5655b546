#include "inspect/report/finding_words.h"

namespace orvane {
namespace {

using enum FindingSeverity;

constexpr FindingEffects Cut(FindingSeverity severity) {
  return {std::array{Action::kInspect, Action::kImport, Action::kApply, Action::kConvert,
                     Action::kRewrite},
          {severity, nullptr}};
}

constexpr FindingMeaning kWords[] = {
    {"cut-range-outside", "--cut asks for {found}, and the file has {expected}", nullptr,
     Cut(kError)},
    {"cut-range-partly", "--cut asks for {expected} frames, and the file lacks {found} of them",
     nullptr, Cut(kWarning)},
};

}  // namespace

std::span<const FindingMeaning> CutFindingMeanings() { return kWords; }

}  // namespace orvane
