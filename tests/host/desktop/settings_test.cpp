#include "host/desktop/settings.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "platform/registry.h"

// Settings as whoever stands outside sees them, and as a module does.

namespace host {
namespace {

using platform::RegistryType;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr char kPath[] = "Software\\Orvane\\Settings Test";

// An open key, as a module has it.
class Key {
 public:
  explicit Key(const std::string& path)
      : key_(platform::CreateRegistryKey(nullptr, path.c_str())) {}
  Key(const Key&) = delete;
  Key& operator=(const Key&) = delete;
  ~Key() { platform::CloseRegistryKey(key_); }

  bool IsOpen() const { return key_ != nullptr; }
  bool Write(const char* name, RegistryType type, const std::string& bytes) {
    return platform::SetRegistryValue(key_, name, type, bytes.data(), bytes.size());
  }
  std::string Read(const char* name) {
    std::array<char, 16> buffer{};
    std::size_t size = buffer.size();
    const bool found = platform::QueryRegistryValue(key_, name, buffer.data(), size);
    return found ? std::string(buffer.data(), size) : "nothing";
  }

 private:
  platform::RegistryKey* key_;
};

TEST(FreshSettingsTest, HoldWhatAModuleWrites) {
  const FreshSettings settings;
  Key(kPath).Write("Flag", RegistryType::kBinary, "1");
  Key(kPath).Write("Number", RegistryType::kDoubleWord, "1234");
  const auto flag = settings.FindValue(kPath, "Flag");
  ASSERT_TRUE(flag.has_value());
  EXPECT_EQ(flag->type, RegistryType::kBinary);
  EXPECT_EQ(flag->bytes, "1");
  EXPECT_EQ(settings.FindValue(kPath, "Number")->type, RegistryType::kDoubleWord);
  EXPECT_FALSE(settings.FindValue(kPath, "Size").has_value());
  EXPECT_FALSE(settings.FindValue("Software\\Orvane", "Flag").has_value());
}

TEST(FreshSettingsTest, HoldWhatAnotherProgramHasStored) {
  FreshSettings settings;
  settings.StoreValue(kPath, "Flag", {RegistryType::kBinary, "1"});
  EXPECT_EQ(Key(kPath).Read("Flag"), "1");
}

TEST(FreshSettingsTest, KnowWhichKeysExist) {
  const FreshSettings settings;
  EXPECT_FALSE(settings.HasKey("Software"));
  const Key key(kPath);
  EXPECT_TRUE(settings.HasKey("Software"));
  EXPECT_TRUE(settings.HasKey("Software\\Orvane"));
  EXPECT_TRUE(settings.HasKey(kPath));
  EXPECT_FALSE(settings.HasKey("Orvane"));
}

TEST(FreshSettingsTest, KnowWhichKeysAreOpen) {
  const FreshSettings settings;
  EXPECT_THAT(settings.OpenKeys(), IsEmpty());
  {
    const Key second("Software\\B");
    const Key first("Software\\A");
    const Key twice("Software\\B");
    EXPECT_THAT(settings.OpenKeys(), ElementsAre("Software\\A", "Software\\B", "Software\\B"));
  }
  EXPECT_THAT(settings.OpenKeys(), IsEmpty());
}

TEST(FreshSettingsTest, RefuseAKeyAndWhatLiesBeneathIt) {
  FreshSettings settings;
  settings.RefuseKey("Software\\Orvane");
  EXPECT_FALSE(Key("Software\\Orvane").IsOpen());
  EXPECT_FALSE(Key("Software\\Orvane\\Skelder").IsOpen());
  EXPECT_TRUE(Key("Software").IsOpen());
  EXPECT_TRUE(Key("Software\\OrvaneToo").IsOpen());
}

TEST(FreshSettingsTest, AreEmptyEveryTime) {
  {
    const FreshSettings settings;
    Key(kPath).Write("Flag", RegistryType::kBinary, "1");
  }
  const FreshSettings settings;
  EXPECT_FALSE(settings.HasKey(kPath));
  EXPECT_EQ(Key(kPath).Read("Flag"), "nothing");
}

TEST(FreshSettingsTest, StandInForThoseInUseBefore) {
  FreshSettings outer;
  outer.StoreValue(kPath, "Flag", {RegistryType::kBinary, "1"});
  {
    const FreshSettings inner;
    EXPECT_EQ(Key(kPath).Read("Flag"), "nothing");
    Key(kPath).Write("Flag", RegistryType::kBinary, "2");
  }
  EXPECT_EQ(Key(kPath).Read("Flag"), "1");
}

}  // namespace
}  // namespace host
