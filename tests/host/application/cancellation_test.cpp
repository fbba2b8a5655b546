#include "host/application/cancellation.h"

#include <gtest/gtest.h>

namespace {

using host::Cancellation;

TEST(CancellationTest, IsNotWantedAtFirst) {
  Cancellation cancellation;
  EXPECT_FALSE(cancellation.Query(0));
  EXPECT_FALSE(cancellation.Query(100));
  EXPECT_EQ(cancellation.Queries(), 2);
}

TEST(CancellationTest, LastsUntilTheNextBar) {
  Cancellation cancellation;
  cancellation.BarOpened();
  cancellation.Request();
  EXPECT_TRUE(cancellation.Query(0));
  EXPECT_TRUE(cancellation.Query(0));
  cancellation.BarOpened();
  EXPECT_FALSE(cancellation.Query(0));
}

TEST(CancellationTest, ComesAtTheQueryPlannedAndStays) {
  Cancellation cancellation;
  cancellation.AtQuery(3);
  for (int bar = 0; bar < 2; ++bar) {
    cancellation.BarOpened();
    EXPECT_EQ(cancellation.Queries(), 0);
    EXPECT_FALSE(cancellation.Query(0));
    EXPECT_FALSE(cancellation.Query(0));
    EXPECT_TRUE(cancellation.Query(0));
    EXPECT_TRUE(cancellation.Query(0));
  }
}

TEST(CancellationTest, ComesAtThePercentagePlannedAndStays) {
  Cancellation cancellation;
  cancellation.AtPercent(50);
  cancellation.BarOpened();
  EXPECT_FALSE(cancellation.Query(49));
  EXPECT_TRUE(cancellation.Query(50));
  EXPECT_TRUE(cancellation.Query(10));
  cancellation.BarOpened();
  EXPECT_TRUE(cancellation.Query(90));
}

TEST(CancellationTest, ForgetsPlansAndRequests) {
  Cancellation cancellation;
  cancellation.AtQuery(1);
  cancellation.AtPercent(0);
  cancellation.Request();
  cancellation.Clear();
  EXPECT_FALSE(cancellation.Query(100));
}

}  // namespace
