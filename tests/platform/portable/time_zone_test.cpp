#include <gtest/gtest.h>

#include <ctime>

#include "tests/platform/now.h"
#include "tests/support/environment_variable.h"

namespace {

TEST(LocalTime, IsInTheTimeZoneOfTheUser) {
  for (const char* zone_name : {"UTC", "<-05>5"}) {
    const test::EnvironmentVariable zone("TZ", zone_name);
    tzset();
    test::ExpectLocalTimeToBeNow();
  }
}

}  // namespace
