#include "host/base/misuse_log.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace host {
namespace {

TEST(MisuseLog, KeepsMessagesInTheirOrder) {
  MisuseLog log;
  EXPECT_EQ(log.Count(), 0U);
  log.Report("first");
  log.Report("second");
  EXPECT_EQ(log.Count(), 2U);
  EXPECT_THAT(log.Messages(), testing::ElementsAre("first", "second"));
}

TEST(MisuseLog, OnlyCountsWhenThereAreMany) {
  MisuseLog log;
  for (int i = 0; i < 1000; ++i) log.Report("again");
  EXPECT_EQ(log.Count(), 1000U);
  EXPECT_EQ(log.Messages().size(), 100U);
}

}  // namespace
}  // namespace host
