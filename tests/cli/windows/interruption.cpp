#include "tests/cli/interruption.h"

#include <windows.h>

namespace test {
namespace {

HANDLE told = nullptr;

// Is asked before the program is, on a thread that the system makes for each wish.
BOOL WINAPI PassOn(DWORD /*event*/) {
  SetEvent(told);
  return FALSE;
}

void Ask(DWORD event) {
  constexpr DWORD kLongest_ms = 10'000;
  constexpr DWORD kForTheProgram_ms = 100;
  told = CreateEventA(nullptr, FALSE, FALSE, nullptr);
  SetConsoleCtrlHandler(PassOn, TRUE);
  GenerateConsoleCtrlEvent(event, 0);
  WaitForSingleObject(told, kLongest_ms);
  Sleep(kForTheProgram_ms);
  SetConsoleCtrlHandler(PassOn, FALSE);
  CloseHandle(told);
}

}  // namespace

void AskToStop() { Ask(CTRL_C_EVENT); }

void AskToTerminate() { Ask(CTRL_BREAK_EVENT); }

}  // namespace test
