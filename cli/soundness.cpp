#include "cli/soundness.h"

#include "cli/failure.h"

namespace cli {

void RequireSound(const std::string& file, const std::string& fault) {
  if (fault.empty()) return;
  throw Failure{
      ExitStatus::kInputOutput,
      {{file, "was read wrongly: " + fault, "This is a fault of orvane; please report it."}}};
}

}  // namespace cli
