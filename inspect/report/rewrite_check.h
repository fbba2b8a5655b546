#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "inspect/check/checked_file.h"
#include "inspect/report/selection_check.h"

// What is to be told of a file that becomes another one, beside what is odd in it: what is asked
// for and not there, and what the other file does not hold. The findings have no place in a file.
// Nothing fails but for want of memory.

namespace orvane {

// What becomes of the frames at another rate.
struct ResampledFrames {
  std::size_t count = 0;
  std::size_t between = 0;     // those that lie between two of the file
  std::string manner;          // "linearly"
  bool has_rotations = false;  // a file of segments, which has no gaps
};

// What the other file does not hold.
struct RewriteLoss {
  std::string_view code;             // REQUIRES: one of rewriting::kRules
  std::vector<std::string> names{};  // segments or markers that lose it; none: the file does
  std::string found{};               // of the file, where the words of the code tell it
  std::string effect{};              // one sentence, where they have none
};

struct RewriteCircumstances {
  std::vector<UnknownName> unselected{};  // names that are selected, and nothing has
  std::vector<std::string> unrenamed{};   // names that get others, and nothing has
  std::vector<std::string> ancestors{};   // of segments that are kept for those that are selected
  std::vector<std::string> with_gaps{};   // of markers that are written
  std::vector<std::string> never_seen{};  // likewise, without any position
  bool stands_along_y = false;  // what is to be turned from Z up to Y up seems to stand so already
  std::string feet{};           // "from feet to mm"; empty when there are none
  std::optional<ResampledFrames> resampled{};
  std::vector<RewriteLoss> losses{};
};

// The findings of the codes "rewrite-...", and of gaps that are written, of the file known as
// `name` of that `kind`.
[[nodiscard]] CheckedFile CheckRewrite(const std::string& name, std::string_view kind,
                                       const RewriteCircumstances& circumstances);

}  // namespace orvane
