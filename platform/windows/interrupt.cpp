#include "platform/interrupt.h"

#include <windows.h>

#include <atomic>

namespace platform {
namespace {

std::atomic<bool> interrupted = false;
std::atomic<bool> held = false;

// Runs on a thread of the system's. When it returns from anything but a key, the process ends.
BOOL WINAPI Remember(DWORD event) {
  const bool was_interrupted = interrupted.exchange(true);
  if (was_interrupted && !held) ExitProcess(kInterruptedStatus);
  if (event != CTRL_C_EVENT && event != CTRL_BREAK_EVENT) Sleep(INFINITE);
  return TRUE;
}

}  // namespace

void CatchInterrupts() { SetConsoleCtrlHandler(Remember, TRUE); }

void HoldInterrupts() { held = true; }

void ReleaseInterrupts() {
  SetConsoleCtrlHandler(Remember, FALSE);
  interrupted = false;
  held = false;
}

bool Interrupted() { return interrupted; }

}  // namespace platform
