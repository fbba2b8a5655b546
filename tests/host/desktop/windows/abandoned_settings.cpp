// Makes fresh settings, a refused key among them, and is killed.

#include <windows.h>

#include <iostream>
#include <string>

#include "host/desktop/settings.h"

int main() {
  host::FreshSettings settings;
  settings.StoreValue("Software\\Test", "Flag", {platform::RegistryType::kBinary, "1"});
  settings.RefuseKey("Software\\Refused");
  RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
  const std::string name = "Skelder Fresh Settings " + std::to_string(GetCurrentProcessId()) + "-1";
  HKEY key = nullptr;
  if (RegOpenKeyExA(HKEY_CURRENT_USER, name.c_str(), 0, KEY_READ, &key) == ERROR_SUCCESS) {
    std::cout << name << std::flush;
  }
  TerminateProcess(GetCurrentProcess(), 1);
}
