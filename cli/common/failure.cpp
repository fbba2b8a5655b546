#include "cli/common/failure.h"

#include "platform/interrupt.h"

namespace cli {

void StopIfInterrupted() {
  if (!platform::Interrupted()) return;
  throw Failure{ExitStatus::kInterrupted, {{"", "interrupted; nothing was written", ""}}};
}

}  // namespace cli
