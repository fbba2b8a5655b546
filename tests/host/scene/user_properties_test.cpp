#include "host/scene/user_properties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace host {
namespace {

using testing::ElementsAre;
using testing::Pair;

TEST(UserProperties, StandInTheOrderOfTheirKeys) {
  PropertyKeys keys;
  UserProperties properties;
  EXPECT_TRUE(properties.empty());
  for (const char* key : {"b", "c", "", "a", "B"}) {
    properties.Set(keys.Of(key), static_cast<float>(*key));
  }
  EXPECT_FALSE(properties.empty());
  EXPECT_THAT(properties, ElementsAre(Pair("", 0.0F), Pair("B", 66.0F), Pair("a", 97.0F),
                                      Pair("b", 98.0F), Pair("c", 99.0F)));
}

TEST(UserProperties, AreFoundByTheirKeys) {
  PropertyKeys keys;
  UserProperties properties;
  properties.Set(keys.Of("b"), 1.0F);
  properties.Set(keys.Of("d"), 2.0F);
  EXPECT_EQ(properties.Find("b"), 1.0F);
  EXPECT_EQ(properties.Find("d"), 2.0F);
  for (const char* key : {"", "a", "c", "dd", "e"}) EXPECT_EQ(properties.Find(key), std::nullopt);
}

TEST(UserProperties, TakeTheLastNumberOfAKey) {
  PropertyKeys keys;
  UserProperties properties;
  properties.Set(keys.Of("a"), 1.0F);
  properties.Set(keys.Of("b"), 2.0F);
  properties.Set(keys.Of("a"), 3.0F);
  EXPECT_THAT(properties, ElementsAre(Pair("a", 3.0F), Pair("b", 2.0F)));
}

TEST(PropertyKeys, AreKeptOnceAndStayWhereTheyAre) {
  PropertyKeys keys;
  const std::string& first = keys.Of("first");
  for (int i = 0; i < 1000; ++i) keys.Of(std::to_string(i));
  EXPECT_EQ(&keys.Of("first"), &first);
  EXPECT_EQ(first, "first");
}

}  // namespace
}  // namespace host
