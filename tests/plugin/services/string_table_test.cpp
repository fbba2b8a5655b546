#include "plugin/services/string_table.h"

#include <gtest/gtest.h>

#include "platform/module.h"

namespace orvane {
namespace {

TEST(StringTableTest, LooksUpTheModulesTexts) {
  StringTable strings;
  EXPECT_STREQ(strings.GetString(platform::ModuleHandle(), 29), "ImportHTR");
  EXPECT_STREQ(strings.GetString(platform::ModuleHandle(), 34),
               "Marker Name Mapping Files (*.MNM)");
}

TEST(StringTableTest, EveryCallOverwritesTheSameBuffer) {
  StringTable strings;
  const char* first = strings.GetString(platform::ModuleHandle(), 29);
  const char* second = strings.GetString(platform::ModuleHandle(), 2);
  EXPECT_EQ(first, second);
  EXPECT_STREQ(first, "Motion Capture");
}

TEST(StringTableTest, AnAbsentStringIsNull) {
  StringTable strings;
  EXPECT_EQ(strings.GetString(platform::ModuleHandle(), 30), nullptr);
  EXPECT_EQ(strings.GetString(platform::ModuleHandle(), 0xFFFFFFFF), nullptr);
}

TEST(StringTableTest, WithoutAModuleEveryStringIsNull) {
  StringTable strings;
  EXPECT_EQ(strings.GetString(nullptr, 29), nullptr);
}

}  // namespace
}  // namespace orvane
