#include "tests/support/user_settings.h"

#include <windows.h>

namespace test {
namespace {

constexpr char kKey[] = "Software\\Orvane";

}  // namespace

NoUserSettings::NoUserSettings(const std::string& folder) : folder_(folder) {
  RegDeleteTreeA(HKEY_CURRENT_USER, kKey);
}

NoUserSettings::~NoUserSettings() { RegDeleteTreeA(HKEY_CURRENT_USER, kKey); }

bool NoUserSettings::AreStored() const {
  HKEY key = nullptr;
  const bool exists = RegOpenKeyExA(HKEY_CURRENT_USER, kKey, 0, KEY_READ, &key) == ERROR_SUCCESS;
  if (exists) RegCloseKey(key);
  return exists;
}

}  // namespace test
