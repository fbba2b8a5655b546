#include <windows.h>

#include <cwchar>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "host/desktop/settings.h"
#include "host/desktop/windows/registry_keys.h"
#include "platform/windows/text.h"

namespace host {
namespace {

using platform::WideFromUtf8;

constexpr char kRootPrefix[] = "Skelder Fresh Settings ";  // the process and a number follow

// Names no other process and no other settings of this one have. The key is no volatile one: none
// but volatile keys could be made beneath it, and the plug-in makes others.
std::string NewRootName() {
  static int count = 0;
  return kRootPrefix + std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++count);
}

HKEY CreateKey(HKEY root, const std::string& path, DWORD options = REG_OPTION_NON_VOLATILE) {
  HKEY key = nullptr;
  const REGSAM access = KEY_ALL_ACCESS | (options == REG_OPTION_CREATE_LINK ? KEY_CREATE_LINK : 0U);
  RegCreateKeyExW(root, WideFromUtf8(path).c_str(), 0, nullptr, options, access, nullptr, &key,
                  nullptr);
  return key;
}

// Deletes an open key, also one that links to another, which functions that follow links cannot.
void DeleteOpenKey(HKEY key) {
  using Function = LONG(WINAPI*)(HANDLE key);
  const auto function = reinterpret_cast<Function>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtDeleteKey")));
  function(key);
}

// The names of the keys right beneath an open key.
std::vector<std::wstring> NamesOfKeysIn(HKEY key) {
  constexpr DWORD kLongestName = 256;
  std::vector<std::wstring> names;
  std::wstring name(kLongestName, L'\0');
  for (DWORD length = kLongestName;
       RegEnumKeyExW(key, static_cast<DWORD>(names.size()), name.data(), &length, nullptr, nullptr,
                     nullptr, nullptr) == ERROR_SUCCESS;
       length = kLongestName) {
    names.push_back(name.substr(0, length));
  }
  return names;
}

// Deletes a key, if it exists, with all beneath it; of links themselves, not what they lead to.
void DeleteTree(HKEY parent, const std::wstring& name) {
  HKEY key = nullptr;
  if (RegOpenKeyExW(parent, name.c_str(), REG_OPTION_OPEN_LINK, KEY_ALL_ACCESS, &key) !=
      ERROR_SUCCESS) {
    return;
  }
  for (const std::wstring& child : NamesOfKeysIn(key)) DeleteTree(key, child);
  DeleteOpenKey(key);
  RegCloseKey(key);
}

bool IsRunning(DWORD process_id) {
  const HANDLE process = OpenProcess(SYNCHRONIZE, FALSE, process_id);
  // Only of a process that there is can access be denied.
  if (process == nullptr) return GetLastError() == ERROR_ACCESS_DENIED;
  const bool running = WaitForSingleObject(process, 0) == WAIT_TIMEOUT;
  CloseHandle(process);
  return running;
}

// Deletes the roots that killed processes have left beneath that of the current user.
void DeleteAbandonedRoots() {
  const std::wstring prefix = WideFromUtf8(kRootPrefix);
  for (const std::wstring& name : NamesOfKeysIn(HKEY_CURRENT_USER)) {
    if (!name.starts_with(prefix)) continue;
    const DWORD process_id = std::wcstoul(name.c_str() + prefix.size(), nullptr, 10);
    if (!IsRunning(process_id)) DeleteTree(HKEY_CURRENT_USER, name);
  }
}

// Stands in place of the current user's root.
HKEY current_root = nullptr;

void UseRoot(HKEY root) {
  RegOverridePredefKey(HKEY_CURRENT_USER, root);
  current_root = root;
}

}  // namespace

class FreshSettings::Body {
 public:
  Body() {
    UseRoot(nullptr);
    DeleteAbandonedRoots();
    DeleteTree(HKEY_CURRENT_USER, WideFromUtf8(name_));  // of a process that had our number
    root_ = CreateKey(HKEY_CURRENT_USER, name_);
    UseRoot(root_);
  }
  Body(const Body&) = delete;
  Body& operator=(const Body&) = delete;
  ~Body() {
    for (const auto& [path, link] : links_) RegCloseKey(link);
    UseRoot(nullptr);
    RegCloseKey(root_);
    DeleteTree(HKEY_CURRENT_USER, WideFromUtf8(name_));
    UseRoot(previous_);
  }

  [[nodiscard]] HKEY Root() const { return root_; }

  [[nodiscard]] std::vector<std::string> OpenKeys() const {
    std::vector<std::string> paths = OpenKeysBelow(root_);
    std::erase_if(paths, [this](const std::string& path) { return links_.count(path) > 0; });
    return paths;
  }

  // A link to nowhere cannot be opened, and nothing beneath it.
  void Refuse(const std::string& path) {
    RegDeleteTreeW(root_, WideFromUtf8(path).c_str());
    HKEY link = CreateKey(root_, path, REG_OPTION_CREATE_LINK);
    const std::wstring nowhere = L"\\Registry\\Machine\\Skelder\\Refused Key\\Nowhere";
    RegSetValueExW(link, L"SymbolicLinkValue", 0, REG_LINK,
                   reinterpret_cast<const BYTE*>(nowhere.data()),
                   static_cast<DWORD>(nowhere.size() * sizeof(wchar_t)));
    links_.emplace(path, link);
  }

 private:
  HKEY previous_ = current_root;
  std::string name_ = NewRootName();
  HKEY root_ = nullptr;
  std::map<std::string, HKEY> links_;  // by the paths of the keys that are refused
};

FreshSettings::FreshSettings() : body_(std::make_unique<Body>()) {}
FreshSettings::~FreshSettings() = default;

std::optional<RegistryValue> FreshSettings::FindValue(const std::string& path,
                                                      const std::string& name) const {
  return ReadRegistryValue(body_->Root(), path, name);
}

std::vector<std::string> FreshSettings::OpenKeys() const { return body_->OpenKeys(); }

bool FreshSettings::HasKey(const std::string& path) const {
  return HasRegistryKey(body_->Root(), path);
}

void FreshSettings::StoreValue(const std::string& path, const std::string& name,
                               const RegistryValue& value) {
  HKEY key = CreateKey(body_->Root(), path);
  RegSetValueExA(key, name.c_str(), 0, static_cast<DWORD>(value.type),
                 reinterpret_cast<const BYTE*>(value.bytes.data()),
                 static_cast<DWORD>(value.bytes.size()));
  RegCloseKey(key);
}

void FreshSettings::RefuseKey(const std::string& path) { body_->Refuse(path); }

}  // namespace host
