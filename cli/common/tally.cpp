#include "cli/common/tally.h"

#include "formats/text/numbers.h"
#include "inspect/check/findings.h"

namespace cli {

std::string TallyOf(std::size_t files, const std::vector<TallyPart>& parts,
                    const std::string& purpose) {
  std::string line;
  for (const auto& [count, singular, plural] : parts) {
    if (count == 0) continue;
    const bool is_first = line.empty();
    line += (is_first ? "" : ", ") + orvane::FormatInt(static_cast<std::int64_t>(count));
    if (is_first) line += " of " + orvane::CountOf(files, "file");
    line += " " + (count == 1 ? singular : plural);
    if (is_first) line += purpose;
  }
  return line;
}

}  // namespace cli
