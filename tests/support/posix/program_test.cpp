#include "tests/support/posix/program.h"

#include <gtest/gtest.h>

#include <csignal>

// A test runs a program as a person at a shell does, whoever runs the test: a job in the background
// ignores interrupts, and what it starts would do so too.

namespace {

struct SignalCase {
  int number;
  const char* name;
};

constexpr SignalCase kSignals[] = {{SIGHUP, "HUP"},   {SIGINT, "INT"},   {SIGQUIT, "QUIT"},
                                   {SIGPIPE, "PIPE"}, {SIGTERM, "TERM"}, {SIGXFSZ, "XFSZ"}};

// The status of a shell that sends the signal to itself.
int StatusAfter(const char* name) {
  const std::string script = std::string("kill -s ") + name + " $$";
  return RunProgram(test::PosixRun{{{"/bin/sh", "-c", script}}}).status;
}

TEST(RunProgram, StartsWithSignalsThatTheTestIgnores) {
  for (const SignalCase& c : kSignals) {
    const auto former = std::signal(c.number, SIG_IGN);
    EXPECT_EQ(StatusAfter(c.name), 128 + c.number) << c.name;
    std::signal(c.number, former);
  }
}

TEST(RunProgram, StartsWithSignalsThatTheTestBlocks) {
  for (const SignalCase& c : kSignals) {
    sigset_t blocked;
    sigset_t former;
    sigemptyset(&blocked);
    sigaddset(&blocked, c.number);
    sigprocmask(SIG_BLOCK, &blocked, &former);
    EXPECT_EQ(StatusAfter(c.name), 128 + c.number) << c.name;
    sigprocmask(SIG_SETMASK, &former, nullptr);
  }
}

}  // namespace
