#pragma once

#include <gtest/gtest.h>

#include <ctime>
#include <string>

#include "platform/local_time.h"

namespace test {

// What the C library says of the current moment.
inline std::string Now() {
  const std::time_t now = std::time(nullptr);
  return std::ctime(&now);
}

// Expects the platform to say the same. A second may pass between the two answers.
inline void ExpectLocalTimeToBeNow() {
  const std::string before = Now();
  const std::string text = platform::LocalTimeText();
  EXPECT_TRUE(text == before || text == Now()) << text << before;
}

}  // namespace test
