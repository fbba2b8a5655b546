#include "cli/common/warnings.h"

#include "cli/common/messages.h"

namespace cli {

void Warn(std::vector<Complaint> complaints, bool strict) {
  if (complaints.empty()) return;
  if (strict) {
    complaints.push_back({"--strict", "nothing was written because of this", ""});
    throw Failure{ExitStatus::kRefused, complaints};
  }
  for (const Complaint& complaint : complaints) Print(Severity::kWarning, complaint);
}

}  // namespace cli
