#include "platform/local_time.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>

namespace {

// What the C library says of the current moment.
std::string Now() {
  const std::time_t now = std::time(nullptr);
  return std::ctime(&now);
}

// A second may pass between the two answers.
TEST(LocalTime, IsThatOfTheSystem) {
  const std::string before = Now();
  const std::string text = platform::LocalTimeText();
  EXPECT_TRUE(text == before || text == Now()) << text << before;
}

}  // namespace
