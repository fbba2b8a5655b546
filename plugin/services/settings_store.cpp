#include "plugin/services/settings_store.h"

#include <array>
#include <string_view>

namespace orvane {
namespace {

constexpr std::size_t kMaximumStringBytes = 1024;

}  // namespace

SettingsStore::~SettingsStore() { platform::CloseRegistryKey(key_); }

bool SettingsStore::Open(const char* first, const char* second, const char* third) {
  valid_ = Descend(std::string("Software\\Orvane\\") + first) && Descend(second) && Descend(third);
  return valid_;
}

// Replaces the key by the one at `path` beneath it.
bool SettingsStore::Descend(const std::string& path) {
  platform::RegistryKey* deeper = platform::CreateRegistryKey(key_, path.c_str());
  if (deeper == nullptr) return false;
  platform::CloseRegistryKey(key_);
  key_ = deeper;
  return true;
}

bool SettingsStore::Read(const char* name, void* data, std::size_t size) const {
  return valid_ && platform::QueryRegistryValue(key_, name, data, size);
}

bool SettingsStore::ReadFlag(const char* name, bool& out) const {
  // Intended: other tools store flags as double words. Four bytes are asked for, and the lowest one
  // is the flag.
  std::array<std::uint8_t, 4> bytes{};
  if (!Read(name, bytes.data(), bytes.size())) return false;
  out = bytes[0] != 0;
  return true;
}

bool SettingsStore::ReadInt(const char* name, std::int32_t& out) const {
  return Read(name, &out, sizeof(out));
}

bool SettingsStore::ReadFloat(const char* name, float& out) const {
  return Read(name, &out, sizeof(out));
}

bool SettingsStore::ReadDouble(const char* name, double& out) const {
  return Read(name, &out, sizeof(out));
}

bool SettingsStore::ReadString(const char* name, std::string& out) const {
  std::array<char, kMaximumStringBytes> buffer{};
  std::size_t size = buffer.size();
  if (!valid_ || !platform::QueryRegistryValue(key_, name, buffer.data(), size)) return false;
  const std::string_view text(buffer.data(), size);
  out = text.substr(0, text.find('\0'));
  return true;
}

bool SettingsStore::Write(const char* name, platform::RegistryType type, const void* data,
                          std::size_t size) {
  return valid_ && platform::SetRegistryValue(key_, name, type, data, size);
}

bool SettingsStore::WriteFlag(const char* name, bool value) {
  const std::uint8_t byte = value ? 1 : 0;
  return Write(name, platform::RegistryType::kBinary, &byte, sizeof(byte));
}

bool SettingsStore::WriteInt(const char* name, std::int32_t value) {
  return Write(name, platform::RegistryType::kDoubleWord, &value, sizeof(value));
}

bool SettingsStore::WriteFloat(const char* name, float value) {
  // Intended: the bits of the number, not the number as an integer.
  return Write(name, platform::RegistryType::kDoubleWord, &value, sizeof(value));
}

bool SettingsStore::WriteDouble(const char* name, double value) {
  return Write(name, platform::RegistryType::kQuadWord, &value, sizeof(value));
}

bool SettingsStore::WriteString(const char* name, const std::string& value) {
  return Write(name, platform::RegistryType::kString, value.data(), value.size());
}

}  // namespace orvane
