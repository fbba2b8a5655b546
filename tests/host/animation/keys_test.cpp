#include "host/animation/keys.h"

#include <gtest/gtest.h>

#include <limits>
#include <map>
#include <random>
#include <vector>

namespace host {
namespace {

using IntKeys = Keys<int>;
using Reference = std::map<TimeValue, int>;

constexpr TimeValue kEarliest = std::numeric_limits<TimeValue>::min();
constexpr TimeValue kLatest = std::numeric_limits<TimeValue>::max();

void ExpectEqual(const IntKeys& keys, const Reference& reference) {
  ASSERT_EQ(keys.Size(), reference.size());
  EXPECT_EQ(keys.IsEmpty(), reference.empty());
  std::size_t i = 0;
  for (const auto& [tick, value] : reference) {
    EXPECT_EQ(keys[i].tick, tick);
    EXPECT_EQ(keys[i].value, value);
    ++i;
  }
}

IntKeys Made(const std::vector<TimeValue>& ticks) {
  IntKeys keys;
  for (const TimeValue tick : ticks) keys.Set(tick, tick * 10);
  return keys;
}

TEST(Keys, AreNoneAtFirst) {
  IntKeys keys;
  EXPECT_TRUE(keys.IsEmpty());
  EXPECT_EQ(keys.LowerBound(0), 0U);
  EXPECT_FALSE(keys.Delete(0));
}

TEST(Keys, AreSortedByTickHoweverTheyAreMade) {
  ExpectEqual(Made({5, 1, 3, -2, 4}), {{-2, -20}, {1, 10}, {3, 30}, {4, 40}, {5, 50}});
}

TEST(Keys, SettingAtAKeysTickReplacesIt) {
  IntKeys keys = Made({1, 2, 3});
  keys.Set(2, 7);
  ExpectEqual(keys, {{1, 10}, {2, 7}, {3, 30}});
  keys.Replace(0, 8);
  ExpectEqual(keys, {{1, 8}, {2, 7}, {3, 30}});
}

TEST(Keys, LowerBoundIsTheFirstKeyAtOrAfterATick) {
  const IntKeys keys = Made({10, 20, 30});
  EXPECT_EQ(keys.LowerBound(kEarliest), 0U);
  EXPECT_EQ(keys.LowerBound(10), 0U);
  EXPECT_EQ(keys.LowerBound(11), 1U);
  EXPECT_EQ(keys.LowerBound(30), 2U);
  EXPECT_EQ(keys.LowerBound(31), 3U);
  EXPECT_EQ(keys.LowerBound(kLatest), 3U);
}

TEST(Keys, DeletingTakesTheKeyAtExactlyThatTick) {
  IntKeys keys = Made({10, 20, 30});
  EXPECT_FALSE(keys.Delete(19));
  EXPECT_FALSE(keys.Delete(21));
  EXPECT_TRUE(keys.Delete(20));
  EXPECT_FALSE(keys.Delete(20));
  ExpectEqual(keys, {{10, 100}, {30, 300}});
}

TEST(Keys, FindsAKeyMadeWhereItJustFoundNone) {
  IntKeys keys = Made({10, 30});
  EXPECT_FALSE(keys.Delete(20));
  keys.Set(20, 1);
  EXPECT_TRUE(keys.Delete(20));
}

TEST(Keys, HoldTheWholeRangeOfTicks) {
  IntKeys keys;
  keys.Set(kLatest, 1);
  keys.Set(kEarliest, 2);
  ExpectEqual(keys, {{kEarliest, 2}, {kLatest, 1}});
  EXPECT_FALSE(keys.Delete(0));
  EXPECT_TRUE(keys.Delete(kEarliest));
  EXPECT_TRUE(keys.Delete(kLatest));
  EXPECT_FALSE(keys.Delete(kEarliest));
  EXPECT_FALSE(keys.Delete(kLatest));
}

TEST(Keys, ClearDeletesAll) {
  IntKeys keys = Made({1, 2, 3});
  keys.Clear();
  EXPECT_TRUE(keys.IsEmpty());
  EXPECT_FALSE(keys.Delete(2));
  keys.Set(2, 5);
  ExpectEqual(keys, {{2, 5}});
}

TEST(Keys, ClearARangeTickByTick) {
  IntKeys keys;
  Reference reference;
  for (TimeValue tick = -400; tick <= 400; tick += 40) {
    keys.Set(tick, tick);
    reference[tick] = tick;
  }
  for (TimeValue tick = -100; tick < 200; ++tick) {
    EXPECT_EQ(keys.Delete(tick), reference.erase(tick) == 1) << tick;
  }
  ExpectEqual(keys, reference);
  for (TimeValue tick = -80; tick < 200; tick += 40) {
    keys.Set(tick, 1);
    reference[tick] = 1;
  }
  ExpectEqual(keys, reference);
}

TEST(Keys, BehaveAsASortedMapUnderRandomUse) {
  std::mt19937 random(7);
  std::uniform_int_distribution<TimeValue> any_tick(-60, 60);
  std::uniform_int_distribution<int> any_operation(0, 99);
  for (int round = 0; round < 50; ++round) {
    IntKeys keys;
    Reference reference;
    for (int step = 0; step < 400; ++step) {
      const TimeValue tick = any_tick(random);
      if (any_operation(random) < 45) {
        keys.Set(tick, step);
        reference[tick] = step;
      } else {
        EXPECT_EQ(keys.Delete(tick), reference.erase(tick) == 1);
      }
      if (any_operation(random) == 0) {
        keys.Clear();
        reference.clear();
      }
    }
    ExpectEqual(keys, reference);
  }
}

// Half a million keys are made and deleted in rising order, once in the middle of others: anything
// that moves all later keys for each would run into the time limit.
TEST(Keys, MakeAndDeleteManyInOrderQuickly) {
  constexpr TimeValue kCount = 500000;
  IntKeys keys;
  for (TimeValue i = 0; i < kCount; ++i) keys.Set(i, i);
  for (TimeValue i = 0; i < kCount; ++i) keys.Set(4 * kCount + i, i);
  for (TimeValue i = 0; i < kCount; ++i) keys.Set(2 * kCount + i, i);
  EXPECT_EQ(keys.Size(), 3U * kCount);
  for (TimeValue i = 0; i < kCount; ++i) ASSERT_TRUE(keys.Delete(2 * kCount + i));
  for (TimeValue i = 0; i < kCount; ++i) ASSERT_TRUE(keys.Delete(i));
  EXPECT_EQ(keys.Size(), static_cast<std::size_t>(kCount));
  EXPECT_EQ(keys[0].tick, 4 * kCount);
}

}  // namespace
}  // namespace host
