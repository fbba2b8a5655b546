#include "tests/cli/interruption.h"

#include <csignal>

namespace test {

void AskToStop() { std::raise(SIGINT); }

void AskToTerminate() { std::raise(SIGTERM); }

}  // namespace test
