#include "platform/registry.h"

#include <windows.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cstdint>
#include <string>
#include <vector>

namespace {

using platform::RegistryKey;
using platform::RegistryType;

// Puts a key of its own in place of the current user's root, and removes it with all in it.
class RegistryTest : public testing::Test {
 protected:
  RegistryTest() {
    RegDeleteTreeA(HKEY_CURRENT_USER, kRoot);
    RegCreateKeyExA(HKEY_CURRENT_USER, kRoot, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &root_,
                    nullptr);
    RegOverridePredefKey(HKEY_CURRENT_USER, root_);
    key_ = platform::CreateRegistryKey(nullptr, "Software\\Orvane\\Test");
  }
  ~RegistryTest() override {
    platform::CloseRegistryKey(key_);
    RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
    RegCloseKey(root_);
    RegDeleteTreeA(HKEY_CURRENT_USER, kRoot);
  }

  // A value as the system itself gives it.
  struct Stored {
    DWORD type = 0;
    std::vector<std::uint8_t> bytes;

    bool operator==(const Stored&) const = default;
  };
  Stored Read(const char* path, const char* name) const {
    Stored stored;
    std::array<std::uint8_t, 256> bytes{};
    auto size = static_cast<DWORD>(bytes.size());
    EXPECT_EQ(RegGetValueA(root_, path, name, RRF_RT_ANY, &stored.type, bytes.data(), &size),
              ERROR_SUCCESS);
    stored.bytes.assign(bytes.begin(), bytes.begin() + size);
    return stored;
  }

  template <typename T>
  bool Set(const char* name, RegistryType type, const T& value) {
    return platform::SetRegistryValue(key_, name, type, &value, sizeof(value));
  }

  static constexpr char kRoot[] = "Software\\OrvanePlatformTest";
  HKEY root_ = nullptr;
  RegistryKey* key_ = nullptr;
};

TEST_F(RegistryTest, MakesEveryLevelOfAKey) {
  ASSERT_NE(key_, nullptr);
  HKEY found = nullptr;
  EXPECT_EQ(RegOpenKeyExA(root_, "Software\\Orvane\\Test", 0, KEY_READ, &found), ERROR_SUCCESS);
  RegCloseKey(found);
}

TEST_F(RegistryTest, MakesKeysThatOutliveTheSession) {
  RegistryKey* const inner = platform::CreateRegistryKey(key_, "Inner");
  ASSERT_NE(inner, nullptr);
  platform::CloseRegistryKey(inner);
  HKEY found = nullptr;
  ASSERT_EQ(RegOpenKeyExA(root_, "Software\\Orvane\\Test\\Inner", 0, KEY_READ, &found),
            ERROR_SUCCESS);
  HKEY beneath = nullptr;
  // Beneath a key that is not to last, no other one can be made.
  EXPECT_EQ(RegCreateKeyExA(found, "Lasting", 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_WRITE,
                            nullptr, &beneath, nullptr),
            ERROR_SUCCESS);
  RegCloseKey(beneath);
  RegCloseKey(found);
}

TEST_F(RegistryTest, StoresTypesAndByteCountsAsTold) {
  EXPECT_TRUE(Set("Flag", RegistryType::kBinary, std::uint8_t{1}));
  EXPECT_TRUE(Set("Number", RegistryType::kDoubleWord, std::int32_t{-2}));
  EXPECT_TRUE(Set("Float", RegistryType::kDoubleWord, 1.0F));
  EXPECT_TRUE(Set("Double", RegistryType::kQuadWord, 1.0));
  const char path[] = "Software\\Orvane\\Test";
  EXPECT_EQ(Read(path, "Flag"), (Stored{REG_BINARY, {1}}));
  EXPECT_EQ(Read(path, "Number"), (Stored{REG_DWORD, {0xFE, 0xFF, 0xFF, 0xFF}}));
  EXPECT_EQ(Read(path, "Float"), (Stored{REG_DWORD, {0, 0, 0x80, 0x3F}}));
  EXPECT_EQ(Read(path, "Double"), (Stored{REG_QWORD, {0, 0, 0, 0, 0, 0, 0xF0, 0x3F}}));
}

TEST_F(RegistryTest, GivesAStringBack) {
  const std::string text = "C:\\Maps\\walk.mnm";
  EXPECT_TRUE(
      platform::SetRegistryValue(key_, "Text", RegistryType::kString, text.data(), text.size()));
  std::array<char, 64> buffer{};
  std::size_t size = buffer.size();
  ASSERT_TRUE(platform::QueryRegistryValue(key_, "Text", buffer.data(), size));
  EXPECT_STREQ(buffer.data(), text.c_str());
  EXPECT_GE(size, text.size()) << "the system may add a NUL";
  EXPECT_LE(size, text.size() + 1);
}

// A NUL behind the text the system would count itself.
TEST_F(RegistryTest, StoresAsMuchOfAStringAsItIsTold) {
  EXPECT_TRUE(platform::SetRegistryValue(key_, "Text", RegistryType::kString, "abcdef", 3));
  std::array<char, 8> buffer{};
  std::size_t size = buffer.size();
  ASSERT_TRUE(platform::QueryRegistryValue(key_, "Text", buffer.data(), size));
  EXPECT_STREQ(buffer.data(), "abc");
  EXPECT_EQ(Read("Software\\Orvane\\Test", "Text").type, DWORD{REG_SZ});
}

TEST_F(RegistryTest, FillsAsManyBytesAsThereAre) {
  EXPECT_TRUE(Set("Flag", RegistryType::kBinary, std::uint8_t{1}));
  std::array<std::uint8_t, 4> bytes = {7, 7, 7, 7};
  std::size_t size = bytes.size();
  EXPECT_TRUE(platform::QueryRegistryValue(key_, "Flag", bytes.data(), size));
  EXPECT_EQ(size, 1u);
  EXPECT_EQ(bytes, (std::array<std::uint8_t, 4>{1, 7, 7, 7}));
}

TEST_F(RegistryTest, ReadsValuesThatAnotherProgramHasWritten) {
  const DWORD flag = 0x0100;
  RegSetKeyValueA(root_, "Software\\Orvane\\Test", "Flag", REG_DWORD, &flag, sizeof(flag));
  std::array<std::uint8_t, 4> bytes{};
  std::size_t size = bytes.size();
  EXPECT_TRUE(platform::QueryRegistryValue(key_, "Flag", bytes.data(), size));
  EXPECT_EQ(bytes, (std::array<std::uint8_t, 4>{0, 1, 0, 0}));
}

TEST_F(RegistryTest, ChangesNothingWhenAValueIsMissingOrTooLong) {
  EXPECT_TRUE(Set("Double", RegistryType::kQuadWord, 1.0));
  EXPECT_TRUE(platform::SetRegistryValue(key_, "Text", RegistryType::kString, "abcdef", 6));
  for (const char* name : {"Missing", "Double", "Text"}) {
    std::uint32_t data = 42;
    std::size_t size = sizeof(data);
    EXPECT_FALSE(platform::QueryRegistryValue(key_, name, &data, size)) << name;
    EXPECT_EQ(data, 42u) << name;
    EXPECT_EQ(size, sizeof(data)) << name;
  }
}

// What the system allows to be done with an open handle.
ACCESS_MASK AccessOf(HANDLE handle) {
  struct {
    ULONG attributes;
    ACCESS_MASK access;
    std::array<ULONG, 12> rest;
  } information{};
  using Function = LONG(WINAPI*)(HANDLE, int, void*, ULONG, ULONG*);
  const auto query = reinterpret_cast<Function>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtQueryObject")));
  constexpr int kBasicInformation = 0;
  EXPECT_EQ(query(handle, kBasicInformation, &information, sizeof(information), nullptr), 0);
  return information.access;
}

TEST_F(RegistryTest, OpensKeysForEverything) {
  EXPECT_EQ(AccessOf(reinterpret_cast<HANDLE>(key_)), ACCESS_MASK{KEY_ALL_ACCESS});
}

TEST_F(RegistryTest, IsNullWhenAKeyCannotBeMade) {
  const std::string too_long(300, 'x');
  EXPECT_EQ(platform::CreateRegistryKey(key_, too_long.c_str()), nullptr);
}

TEST_F(RegistryTest, ClosesNothingForNull) { platform::CloseRegistryKey(nullptr); }

}  // namespace
