#include "platform/local_time.h"

#include <gtest/gtest.h>

#include <ctime>
#include <string>
#include <vector>

#include "tests/support/environment_variable.h"

namespace platform {
namespace {

using test::EnvironmentVariable;

struct ClockCase {
  std::string seconds;
  std::string text;
};

TEST(LocalTime, IsSetByTheEnvironment) {
  const EnvironmentVariable zone("TZ", "America/Lima");
  const std::vector<ClockCase> cases = {
      {"0", "Thu Jan  1 00:00:00 1970\n"},
      {"741476948", "Wed Jun 30 21:49:08 1993\n"},
      {"1709164800", "Thu Feb 29 00:00:00 2024\n"},
      {"-1", "Wed Dec 31 23:59:59 1969\n"},
      {"253402300800", "Sat Jan  1 00:00:00 10000\n"},
  };
  for (const ClockCase& c : cases) {
    const EnvironmentVariable clock("SOURCE_DATE_EPOCH", c.seconds);
    EXPECT_EQ(LocalTimeText(), c.text) << c.seconds;
  }
}

// What the C library says of the current moment.
std::string Now() {
  const std::time_t now = std::time(nullptr);
  return std::ctime(&now);
}

// A second may pass between the two answers.
void ExpectToBeNow() {
  const std::string before = Now();
  const std::string text = LocalTimeText();
  EXPECT_TRUE(text == before || text == Now()) << text << before;
}

TEST(LocalTime, IsThatOfTheSystemOtherwise) {
  for (const char* zone_name : {"UTC", "<-05>5"}) {
    const EnvironmentVariable zone("TZ", zone_name);
    tzset();
    const EnvironmentVariable no_clock("SOURCE_DATE_EPOCH", {});
    ExpectToBeNow();
    for (const char* seconds : {"", "soon", "12 ", "99999999999999999999", "9223372036854775807"}) {
      const EnvironmentVariable clock("SOURCE_DATE_EPOCH", seconds);
      ExpectToBeNow();
    }
  }
}

}  // namespace
}  // namespace platform
