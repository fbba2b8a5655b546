#include "platform/interrupt.h"

#include "platform/web/interrupt_request.h"

namespace platform {
namespace {

bool interrupted = false;

}  // namespace

void RequestInterrupt() { interrupted = true; }

void CatchInterrupts() {}

void HoldInterrupts() {}

void ReleaseInterrupts() { interrupted = false; }

bool Interrupted() { return interrupted; }

}  // namespace platform
