#include "platform/interrupt.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>

namespace {

volatile std::sig_atomic_t own_calls = 0;

void CountOwn(int /*signal*/) { own_calls = own_calls + 1; }

TEST(InterruptTest, GivesTheWishBackToWhoHadItBefore) {
  const auto use = [] {
    (void)std::signal(SIGINT, CountOwn);
    platform::CatchInterrupts();
    platform::CatchInterrupts();
    (void)std::raise(SIGINT);
    const bool was_caught = platform::Interrupted() && own_calls == 0;
    platform::ReleaseInterrupts();
    const bool is_forgotten = !platform::Interrupted();
    (void)std::raise(SIGINT);
    std::_Exit(was_caught && is_forgotten && own_calls == 1 ? 0 : 1);
  };
  EXPECT_EXIT(use(), testing::ExitedWithCode(0), "");
}

TEST(InterruptTest, CatchesAgainWhatWasGivenBack) {
  const auto use = [] {
    platform::CatchInterrupts();
    platform::HoldInterrupts();
    platform::ReleaseInterrupts();
    platform::CatchInterrupts();
    (void)std::raise(SIGTERM);
    if (!platform::Interrupted()) std::_Exit(1);
    (void)std::raise(SIGTERM);  // which nobody holds
    std::_Exit(2);
  };
  EXPECT_EXIT(use(), testing::ExitedWithCode(platform::kInterruptedStatus), "");
}

}  // namespace
