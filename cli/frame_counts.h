#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/dialog_user.h"
#include "cli/failure.h"
#include "plugin/htr/document.h"

// Whether a motion file holds the frames that its header announces. The plug-in sets keys for what
// is announced, so a header that is wrong can ask for any amount of work.

namespace cli {

// What is to be said when the counts of `file`, which holds `document` and has segments, differ;
// nothing when they agree. Throws a Failure when importing by `wishes` takes far more frames than
// are held.
std::optional<Complaint> CompareFrameCounts(const std::string& file,
                                            const orvane::HtrDocument& document,
                                            const std::vector<ControlWish>& wishes);

}  // namespace cli
