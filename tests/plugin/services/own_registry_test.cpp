#include <gtest/gtest.h>

#include "plugin/services/settings_store.h"
#include "tests/support/desk.h"

// What holds of the host's own registry alone: there may be none, and it stores texts as they are.

namespace orvane {
namespace {

TEST(OwnRegistryTest, WithoutOneNothingOpensAndNothingWorks) {
  SettingsStore store;
  EXPECT_FALSE(store.Open("OrvaneFileIO", "Skelder", "Test"));
  bool flag = true;
  EXPECT_FALSE(store.ReadFlag("A", flag));
  EXPECT_TRUE(flag);
  EXPECT_FALSE(store.WriteFlag("A", true));
}

TEST(OwnRegistryTest, AStringFillsItsRoom) {
  test::Desk desk;
  desk.settings().StoreValue("Software\\Orvane\\OrvaneFileIO\\Skelder\\Test", "Text",
                             {platform::RegistryType::kString, std::string(1024, 'a')});
  SettingsStore store;
  ASSERT_TRUE(store.Open("OrvaneFileIO", "Skelder", "Test"));
  std::string text;
  EXPECT_TRUE(store.ReadString("Text", text));
  EXPECT_EQ(text, std::string(1024, 'a'));
}

}  // namespace
}  // namespace orvane
