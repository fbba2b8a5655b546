#pragma once

#include <cstdint>
#include <string>

#include "platform/registry.h"

// The user's choices between runs of the host: typed values under one key of the current user's
// registry. Whoever has options to keep owns a store with a key of its own; which values it holds
// is the owner's affair.
namespace orvane {

class SettingsStore {
 public:
  // Not open yet: every operation but Open returns false.
  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = delete;
  SettingsStore& operator=(const SettingsStore&) = delete;
  // Closes the key.
  ~SettingsStore();

  // Opens the key Software\Orvane\<first>\<second>\<third> of the current user and creates what is
  // missing, one level at a time. Returns false, and leaves the store not open, when one level
  // fails.
  bool Open(const char* first, const char* second, const char* third);

  // Each reads the value `name` into `out`. Returns false, leaving `out` as it was, when the store
  // is not open or holds no such value, or one that is too long. Of a value that is too short the
  // bytes that there are replace the first ones of `out`.
  bool ReadFlag(const char* name, bool& out) const;
  bool ReadInt(const char* name, std::int32_t& out) const;
  bool ReadFloat(const char* name, float& out) const;
  bool ReadDouble(const char* name, double& out) const;
  // Up to 1,024 bytes, to the first NUL.
  bool ReadString(const char* name, std::string& out) const;

  // Each writes `value` under `name`. Returns false when the store is not open or the registry
  // refuses.
  bool WriteFlag(const char* name, bool value);
  bool WriteInt(const char* name, std::int32_t value);
  // As a double word that holds the bits of the number.
  bool WriteFloat(const char* name, float value);
  // As a quad word that holds the bits of the number.
  bool WriteDouble(const char* name, double value);
  // Without a terminator.
  bool WriteString(const char* name, const std::string& value);

 private:
  [[nodiscard]] bool Descend(const std::string& path);
  bool Read(const char* name, void* data, std::size_t size) const;
  bool Write(const char* name, platform::RegistryType type, const void* data, std::size_t size);

  bool valid_ = false;
  platform::RegistryKey* key_ = nullptr;
};

}  // namespace orvane
