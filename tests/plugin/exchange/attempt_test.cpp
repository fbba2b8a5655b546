#include "plugin/exchange/attempt.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace orvane {
namespace {

TEST(AttemptTest, GoesOnWhateverTheStepThrows) {
  int done = 0;
  Attempt([] { throw std::runtime_error("it broke"); });
  Attempt([] { throw 1; });
  Attempt([&done] { ++done; });
  EXPECT_EQ(done, 1);
}

TEST(EnterTest, KnowsOfTheStateFromTheBeginningOfTheStep) {
  bool entered = false;
  Enter(entered, [&entered] { EXPECT_TRUE(entered); });
  EXPECT_TRUE(entered);
}

TEST(EnterTest, AStateThatIsLeftMeanwhileStaysLeft) {
  bool entered = false;
  Enter(entered, [&entered] { entered = false; });
  EXPECT_FALSE(entered);
}

TEST(EnterTest, AStepThatThrowsEntersNothing) {
  bool entered = false;
  EXPECT_THROW(Enter(entered, [] { throw 1; }), int);
  EXPECT_FALSE(entered);
}

}  // namespace
}  // namespace orvane
