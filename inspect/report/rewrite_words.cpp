#include "inspect/report/finding_words.h"

namespace orvane {
namespace {

using enum FindingSeverity;

constexpr FindingEffects Rewritten(FindingSeverity severity, const char* consequence = nullptr) {
  return {std::array{Action::kRewrite}, {severity, consequence}};
}

constexpr FindingMeaning kWords[] = {
    {"rewrite-select-unknown", "The file has nothing of a name that is selected",
     "The file has nothing of {count} names that are selected", Rewritten(kError)},
    {"rewrite-rename-unknown", "The file has nothing of a name that gets another one",
     "The file has nothing of {count} names that get others",
     Rewritten(kWarning, "Such a name renames nothing.")},
    {"rewrite-feet", "Lengths are converted {found}", nullptr, Rewritten(kWarning)},
    {"rewrite-scale-lost", "A segment is scaled in some of its frames",
     "{count} segments are scaled in some of their frames",
     Rewritten(kWarning, "The new file holds no scales.")},
    {"rewrite-select-ancestors", "A segment is not selected that others hang from",
     "{count} segments are not selected that others hang from",
     Rewritten(kNote, "They are kept, too: without them the others would not be where they are.")},
    {"rewrite-resampled", "Of {found} at the new rate, {expected} lie between those of the file",
     nullptr, Rewritten(kNote)},
    {"rewrite-skeleton-lost", "The file holds which segment hangs from which, and how long each is",
     nullptr,
     Rewritten(kNote,
               "The new file holds where the segments are in each frame, and none of that.")},
};

}  // namespace

std::span<const FindingMeaning> RewriteFindingMeanings() { return kWords; }

}  // namespace orvane
