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
    {"rewrite-translation-held", "A segment moves against the one that it hangs from",
     "{count} segments move against those that they hang from", Rewritten(kWarning)},
    {"rewrite-frames-held", "A segment holds fewer frames than others",
     "{count} segments hold fewer frames than others",
     Rewritten(kWarning,
               "In the rest of the new file such a segment stays as it is in its last frame, or "
               "in its base position.")},
    {"rewrite-frame-added", "No segment holds a frame", nullptr,
     Rewritten(kWarning, "The new file has one, the base position.")},
    {"rewrite-segment-unattached", "A segment hangs from no root",
     "{count} segments hang from no root",
     Rewritten(kWarning, "The new file is without such a segment.")},
    {"rewrite-name-changed", "A name cannot stand in the new file as it is",
     "{count} names cannot stand in the new file as they are", Rewritten(kWarning)},
    {"rewrite-select-ancestors", "A segment is not selected that others hang from",
     "{count} segments are not selected that others hang from",
     Rewritten(kNote, "They are kept, too: without them the others would not be where they are.")},
    {"rewrite-up-doubtful", "The file seems to have its heights along Y", nullptr,
     Rewritten(kNote, "--up z takes them along Z and turns them: what stands lies on its side.")},
    {"rewrite-resampled", "Of {found} at the new rate, {expected} lie between those of the file",
     nullptr, Rewritten(kNote)},
    {"rewrite-skeleton-lost", "The file holds which segment hangs from which, and how long each is",
     nullptr,
     Rewritten(kNote,
               "The new file holds where the segments are in each frame, and none of that.")},
    {"rewrite-base-lost", "The base position turns {found}", nullptr,
     Rewritten(kNote,
               "In the new file that is part of the motion, and its own rest pose turns nothing.")},
    {"rewrite-unit-lost", "Lengths are in {found}, which the new file does not say", nullptr,
     Rewritten(kNote,
               "Other programs take them for lengths in their own unit; --unit converts them.")},
    {"rewrite-start-frame-lost", "The first frame has the number {found}", nullptr,
     Rewritten(kNote)},
    {"rewrite-time-lost", "The first frame has the time {found}, which goes by no frame number",
     nullptr,
     Rewritten(
         kWarning,
         "The new file holds no times: other programs count them by its frame numbers and its "
         "rate.")},
    {"rewrite-frames-uncounted",
     "The last frame has the number {found}, and the header of the new file counts to 65535",
     nullptr, Rewritten(kNote, "Its parameters tell the frames, which some programs do not read.")},
    {"rewrite-coordinate-rounded", "A coordinate has more digits than single precision holds",
     nullptr, Rewritten(kNote)},
    {"rewrite-rate-rounded", "The frame rate {found} has more digits than single precision holds",
     nullptr,
     Rewritten(kNote, "It is rounded; the parameter ORVANE:RATE of the new file says all of it.")},
    {"rewrite-rate-lost", "The file says {found}, too", nullptr,
     Rewritten(kNote, "The new file holds its frame rate alone.")},
    {"rewrite-name-encoding", "A name has blanks at its end, or characters beyond ASCII",
     "{count} names have blanks at their ends, or characters beyond ASCII",
     Rewritten(kNote, "It stands in the new file as it is; other programs may show it otherwise.")},
};

}  // namespace

std::span<const FindingMeaning> RewriteFindingMeanings() { return kWords; }

}  // namespace orvane
