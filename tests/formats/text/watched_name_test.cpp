#include "formats/text/watched_name.h"

#include <gtest/gtest.h>

namespace orvane {
namespace {

TEST(WatchedName, TellsItsWatcherOfANewText) {
  bool changed = false;
  WatchedName name("Hip");
  name.Watch(changed);
  EXPECT_FALSE(changed);
  name.Set("Knee");
  EXPECT_TRUE(changed);
  EXPECT_EQ(name.Get(), "Knee");
}

TEST(WatchedName, NeedsNoWatcher) {
  WatchedName name;
  EXPECT_EQ(name.Get(), "");
  name.Set("Hip");
  EXPECT_EQ(name.Get(), "Hip");
}

TEST(WatchedName, IsCopiedWithoutItsWatcher) {
  bool changed = false;
  WatchedName name("Hip");
  name.Watch(changed);
  WatchedName copy(name);
  copy.Set("Knee");
  EXPECT_FALSE(changed);
  EXPECT_EQ(name.Get(), "Hip");
}

TEST(WatchedName, KeepsAndTellsItsWatcherWhenOverwritten) {
  bool changed = false;
  WatchedName name("Hip");
  name.Watch(changed);
  name = WatchedName("Knee");
  EXPECT_TRUE(changed);
  changed = false;
  name.Set("Ankle");
  EXPECT_TRUE(changed);
}

}  // namespace
}  // namespace orvane
