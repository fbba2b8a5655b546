#include "platform/local_time.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "host/desktop/stopped_clock.h"
#include "tests/platform/now.h"
#include "tests/support/environment_variable.h"

namespace {

using host::StoppedClock;
using platform::LocalTimeText;
using test::EnvironmentVariable;
using test::ExpectLocalTimeToBeNow;

struct ClockCase {
  std::int64_t seconds;
  const char* text;
};

constexpr ClockCase kMoments[] = {
    {0, "Thu Jan  1 00:00:00 1970\n"},
    {741476948, "Wed Jun 30 21:49:08 1993\n"},
    {1709164800, "Thu Feb 29 00:00:00 2024\n"},
    {-1, "Wed Dec 31 23:59:59 1969\n"},
    {253402300800, "Sat Jan  1 00:00:00 10000\n"},
};

TEST(LocalTime, IsThatOfAStoppedClock) {
  for (const ClockCase& c : kMoments) {
    const StoppedClock clock(c.seconds);
    EXPECT_EQ(LocalTimeText(), c.text);
    EXPECT_EQ(LocalTimeText(), c.text);
  }
}

TEST(LocalTime, IsInNoTimeZoneOnAStoppedClock) {
  const EnvironmentVariable zone("TZ", "PET5");
  const StoppedClock clock(741476948);
  EXPECT_EQ(LocalTimeText(), "Wed Jun 30 21:49:08 1993\n");
}

TEST(LocalTime, IsThatOfTheSystemWithoutAStoppedClock) {
  ExpectLocalTimeToBeNow();
  {
    const StoppedClock clock(0);
    EXPECT_EQ(LocalTimeText(), "Thu Jan  1 00:00:00 1970\n");
    {
      const StoppedClock inner(741476948);
      EXPECT_EQ(LocalTimeText(), "Wed Jun 30 21:49:08 1993\n");
    }
    EXPECT_EQ(LocalTimeText(), "Thu Jan  1 00:00:00 1970\n");
  }
  ExpectLocalTimeToBeNow();
}

// A plug-in does not ask the environment of its host.
TEST(LocalTime, IsThatOfTheSystemWhateverTheEnvironmentSays) {
  const EnvironmentVariable epoch("SOURCE_DATE_EPOCH", "0");
  ExpectLocalTimeToBeNow();
}

TEST(LocalTime, IsThatOfTheSystemWhenAClockStandsWhereNoCalendarReaches) {
  using Limits = std::numeric_limits<std::int64_t>;
  for (const std::int64_t seconds : {Limits::min(), Limits::max()}) {
    const StoppedClock clock(seconds);
    ExpectLocalTimeToBeNow();
  }
}

}  // namespace
