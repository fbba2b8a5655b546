#include "plugin/services/settings_store.h"

#include <gtest/gtest.h>

#include <limits>

#include "tests/support/desk.h"

namespace orvane {
namespace {

using platform::RegistryType;

constexpr char kKey[] = "Software\\Orvane\\OrvaneFileIO\\Skelder\\Test";

std::string Bytes(std::initializer_list<unsigned char> bytes) {
  return std::string(bytes.begin(), bytes.end());
}

class SettingsStoreTest : public testing::Test {
 protected:
  bool Open() { return store_.Open("OrvaneFileIO", "Skelder", "Test"); }

  // What lies in the registry under `name`.
  host::RegistryValue Stored(const char* name) {
    return desk_.settings().FindValue(kKey, name).value_or(host::RegistryValue{});
  }

  // Stores bytes from outside, as another tool would.
  void Put(const char* name, RegistryType type, const std::string& bytes) {
    desk_.settings().StoreValue(kKey, name, {type, bytes});
  }

  test::Desk desk_;
  SettingsStore store_;
};

TEST_F(SettingsStoreTest, OpenCreatesAllThreeLevels) {
  EXPECT_TRUE(Open());
  EXPECT_TRUE(desk_.settings().HasKey("Software\\Orvane\\OrvaneFileIO"));
  EXPECT_TRUE(desk_.settings().HasKey("Software\\Orvane\\OrvaneFileIO\\Skelder"));
  EXPECT_TRUE(desk_.settings().HasKey(kKey));
}

TEST_F(SettingsStoreTest, OnlyTheDeepestKeyStaysOpenUntilTheEnd) {
  {
    SettingsStore store;
    ASSERT_TRUE(store.Open("OrvaneFileIO", "Skelder", "Test"));
    EXPECT_EQ(desk_.settings().OpenKeys(), std::vector<std::string>{kKey});
  }
  EXPECT_TRUE(desk_.settings().OpenKeys().empty());
}

TEST_F(SettingsStoreTest, FirstReadsFailAndChangeNothing) {
  ASSERT_TRUE(Open());
  bool flag = true;
  std::int32_t number = 7;
  float single = 1.5F;
  double real = 2.5;
  std::string text = "before";
  EXPECT_FALSE(store_.ReadFlag("A", flag));
  EXPECT_FALSE(store_.ReadInt("A", number));
  EXPECT_FALSE(store_.ReadFloat("A", single));
  EXPECT_FALSE(store_.ReadDouble("A", real));
  EXPECT_FALSE(store_.ReadString("A", text));
  EXPECT_TRUE(flag);
  EXPECT_EQ(number, 7);
  EXPECT_EQ(single, 1.5F);
  EXPECT_EQ(real, 2.5);
  EXPECT_EQ(text, "before");
}

TEST_F(SettingsStoreTest, EveryKindIsWrittenInItsOwnForm) {
  ASSERT_TRUE(Open());
  EXPECT_TRUE(store_.WriteFlag("Flag", true));
  EXPECT_TRUE(store_.WriteFlag("Clear", false));
  EXPECT_TRUE(store_.WriteInt("Int", -2));
  EXPECT_TRUE(store_.WriteFloat("Float", 1.0F));
  EXPECT_TRUE(store_.WriteDouble("Double", 1.0));
  EXPECT_TRUE(store_.WriteString("String", "abc"));

  EXPECT_EQ(Stored("Flag").type, RegistryType::kBinary);
  EXPECT_EQ(Stored("Flag").bytes, Bytes({1}));
  EXPECT_EQ(Stored("Clear").bytes, Bytes({0}));
  EXPECT_EQ(Stored("Int").type, RegistryType::kDoubleWord);
  EXPECT_EQ(Stored("Int").bytes, Bytes({0xFE, 0xFF, 0xFF, 0xFF}));
  EXPECT_EQ(Stored("Float").type, RegistryType::kDoubleWord);
  EXPECT_EQ(Stored("Float").bytes, Bytes({0, 0, 0x80, 0x3F}));
  EXPECT_EQ(Stored("Double").type, RegistryType::kQuadWord);
  EXPECT_EQ(Stored("Double").bytes, Bytes({0, 0, 0, 0, 0, 0, 0xF0, 0x3F}));
  EXPECT_EQ(Stored("String").type, RegistryType::kString);
  EXPECT_EQ(Stored("String").bytes, "abc");
}

TEST_F(SettingsStoreTest, WhatWasWrittenIsReadBack) {
  ASSERT_TRUE(Open());
  store_.WriteFlag("Flag", true);
  store_.WriteInt("Int", std::numeric_limits<std::int32_t>::min());
  store_.WriteFloat("Float", 0.1F);
  store_.WriteDouble("Double", 0.1);
  store_.WriteString("String", "a text");
  bool flag = false;
  std::int32_t number = 0;
  float single = 0;
  double real = 0;
  std::string text;
  EXPECT_TRUE(store_.ReadFlag("Flag", flag));
  EXPECT_TRUE(store_.ReadInt("Int", number));
  EXPECT_TRUE(store_.ReadFloat("Float", single));
  EXPECT_TRUE(store_.ReadDouble("Double", real));
  EXPECT_TRUE(store_.ReadString("String", text));
  EXPECT_TRUE(flag);
  EXPECT_EQ(number, std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(single, 0.1F);
  EXPECT_EQ(real, 0.1);
  EXPECT_EQ(text, "a text");
}

TEST_F(SettingsStoreTest, OfAFlagStoredAsADoubleWordOnlyTheLowestByteCounts) {
  ASSERT_TRUE(Open());
  bool flag = true;
  Put("Flag", RegistryType::kDoubleWord, Bytes({0, 1, 1, 1}));
  EXPECT_TRUE(store_.ReadFlag("Flag", flag));
  EXPECT_FALSE(flag);
  Put("Flag", RegistryType::kDoubleWord, Bytes({1, 0, 0, 0}));
  EXPECT_TRUE(store_.ReadFlag("Flag", flag));
  EXPECT_TRUE(flag);
}

TEST_F(SettingsStoreTest, AStoredValueThatIsTooLongFailsAndChangesNothing) {
  ASSERT_TRUE(Open());
  Put("Long", RegistryType::kBinary, std::string(9, '\1'));
  Put("Text", RegistryType::kString, std::string(1025, 'a'));
  bool flag = false;
  std::int32_t number = 7;
  double real = 2.5;
  std::string text = "before";
  EXPECT_FALSE(store_.ReadFlag("Long", flag));
  EXPECT_FALSE(store_.ReadInt("Long", number));
  EXPECT_FALSE(store_.ReadDouble("Long", real));
  EXPECT_FALSE(store_.ReadString("Text", text));
  EXPECT_FALSE(flag);
  EXPECT_EQ(number, 7);
  EXPECT_EQ(real, 2.5);
  EXPECT_EQ(text, "before");
}

TEST_F(SettingsStoreTest, AStoredValueThatIsShorterFillsItsBytes) {
  ASSERT_TRUE(Open());
  Put("Short", RegistryType::kBinary, Bytes({0x34, 0x12}));
  std::int32_t number = 0x11223344;
  EXPECT_TRUE(store_.ReadInt("Short", number));
  EXPECT_EQ(number, 0x11221234);
}

TEST_F(SettingsStoreTest, AFloatReadAsADoubleReplacesItsLowBytes) {
  ASSERT_TRUE(Open());
  store_.WriteFloat("ScaleFactor", 2.0F);
  double factor = 1.0;
  EXPECT_TRUE(store_.ReadDouble("ScaleFactor", factor));
  EXPECT_NE(factor, 2.0);
  EXPECT_NEAR(factor, 1.0, 1e-6);
}

TEST_F(SettingsStoreTest, AStringEndsAtItsFirstNul) {
  ASSERT_TRUE(Open());
  Put("Text", RegistryType::kString, std::string("abc\0def", 7));
  std::string text;
  EXPECT_TRUE(store_.ReadString("Text", text));
  EXPECT_EQ(text, "abc");
}

void ExpectNothingWorks(SettingsStore& store) {
  bool flag = true;
  std::int32_t number = 7;
  float single = 1.5F;
  double real = 2.5;
  std::string text = "before";
  EXPECT_FALSE(store.ReadFlag("A", flag));
  EXPECT_FALSE(store.ReadInt("A", number));
  EXPECT_FALSE(store.ReadFloat("A", single));
  EXPECT_FALSE(store.ReadDouble("A", real));
  EXPECT_FALSE(store.ReadString("A", text));
  EXPECT_FALSE(store.WriteFlag("A", true));
  EXPECT_FALSE(store.WriteInt("A", 1));
  EXPECT_FALSE(store.WriteFloat("A", 1));
  EXPECT_FALSE(store.WriteDouble("A", 1));
  EXPECT_FALSE(store.WriteString("A", "text"));
  EXPECT_EQ(number, 7);
  EXPECT_EQ(text, "before");
}

TEST_F(SettingsStoreTest, BeforeOpenNothingWorks) { ExpectNothingWorks(store_); }

class SettingsStoreRefusalTest : public SettingsStoreTest,
                                 public testing::WithParamInterface<const char*> {};

TEST_P(SettingsStoreRefusalTest, AFailureAtAnyLevelLeavesItInvalid) {
  desk_.settings().RefuseKey(GetParam());
  EXPECT_FALSE(Open());
  ExpectNothingWorks(store_);
}

INSTANTIATE_TEST_SUITE_P(Levels, SettingsStoreRefusalTest,
                         testing::Values("Software\\Orvane\\OrvaneFileIO",
                                         "Software\\Orvane\\OrvaneFileIO\\Skelder", kKey));

}  // namespace
}  // namespace orvane
