#include "platform/interrupt.h"

#include <unistd.h>

#include <csignal>
#include <initializer_list>

namespace platform {
namespace {

volatile std::sig_atomic_t interrupted = 0;
volatile std::sig_atomic_t held = 0;

void Remember(int) {
  if (interrupted != 0 && held == 0) _exit(kInterruptedStatus);
  interrupted = 1;
}

void Catch(int signal) {
  struct sigaction action {};
  sigaction(signal, nullptr, &action);
  if (action.sa_handler == SIG_IGN) return;
  action.sa_handler = Remember;
  action.sa_flags = SA_RESTART;
  sigaction(signal, &action, nullptr);
}

}  // namespace

void CatchInterrupts() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) Catch(signal);
}

void HoldInterrupts() { held = 1; }

bool Interrupted() { return interrupted != 0; }

}  // namespace platform
