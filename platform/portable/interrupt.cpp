#include "platform/interrupt.h"

#include <unistd.h>

#include <array>
#include <csignal>

namespace platform {
namespace {

volatile std::sig_atomic_t interrupted = 0;
volatile std::sig_atomic_t held = 0;

// A signal that is such a wish, and what was done with it before.
struct CaughtSignal {
  int signal;
  bool is_caught = false;
  struct sigaction former = {};
};
std::array<CaughtSignal, 3> wishes = {{{SIGINT}, {SIGTERM}, {SIGHUP}}};

void Remember(int) {
  if (interrupted != 0 && held == 0) _exit(kInterruptedStatus);
  interrupted = 1;
}

void Catch(CaughtSignal& wish) {
  struct sigaction action {};
  sigaction(wish.signal, nullptr, &action);
  if (wish.is_caught || action.sa_handler == SIG_IGN) return;
  wish.former = action;
  wish.is_caught = true;
  action.sa_handler = Remember;
  action.sa_flags = SA_RESTART;
  sigaction(wish.signal, &action, nullptr);
}

}  // namespace

void CatchInterrupts() {
  for (CaughtSignal& wish : wishes) Catch(wish);
}

void HoldInterrupts() { held = 1; }

void ReleaseInterrupts() {
  for (CaughtSignal& wish : wishes) {
    if (wish.is_caught) sigaction(wish.signal, &wish.former, nullptr);
    wish.is_caught = false;
  }
  interrupted = 0;
  held = 0;
}

bool Interrupted() { return interrupted != 0; }

}  // namespace platform
