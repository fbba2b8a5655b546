#include "host/desktop/windows/registry_keys.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "platform/windows/text.h"

namespace host {
namespace {

using platform::Utf8FromWide;
using platform::WideFromUtf8;

// A key that is open for reading.
class ReadKey {
 public:
  ReadKey(HKEY root, const std::string& path) {
    RegOpenKeyExW(root, WideFromUtf8(path).c_str(), 0, KEY_READ, &key_);
  }
  ReadKey(const ReadKey&) = delete;
  ReadKey& operator=(const ReadKey&) = delete;
  ~ReadKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }

  [[nodiscard]] bool IsOpen() const { return key_ != nullptr; }
  [[nodiscard]] HKEY Handle() const { return key_; }

 private:
  HKEY key_ = nullptr;
};

// The system's function that tells the name of a key, which no header declares.
constexpr LONG kInvalidHandle = static_cast<LONG>(0xC0000008UL);
constexpr int kKeyNameInformation = 3;
using QueryKeyFunction = LONG(WINAPI*)(HANDLE key, int information, void* buffer, ULONG size,
                                       ULONG* needed);

QueryKeyFunction QueryKey() {
  static const auto function = reinterpret_cast<QueryKeyFunction>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), "NtQueryKey")));
  return function;
}

// What is known of a handle.
struct HandleName {
  bool is_open = false;
  std::wstring key;  // the full name of the key, empty when it is none
};

HandleName NameOf(HANDLE handle) {
  constexpr std::size_t kLongestName = 2048;
  std::wstring buffer(kLongestName, L'\0');
  ULONG size = 0;
  const LONG status = QueryKey()(handle, kKeyNameInformation, buffer.data(),
                                 static_cast<ULONG>(buffer.size() * sizeof(wchar_t)), &size);
  if (status != 0) return {status != kInvalidHandle, L""};
  std::uint32_t bytes = 0;  // the length stands before the name
  std::memcpy(&bytes, buffer.data(), sizeof bytes);
  return {true, buffer.substr(sizeof bytes / sizeof(wchar_t), bytes / sizeof(wchar_t))};
}

// Calls `see` with the name of every key that this process has open.
template <typename See>
void ForEachOpenKey(const See& see) {
  constexpr std::uintptr_t kStep = 4;
  constexpr int kWidestGap = 256;  // between the numbers of two handles
  int gap = 0;
  for (std::uintptr_t number = kStep; gap < kWidestGap; number += kStep) {
    // NOLINTNEXTLINE(performance-no-int-to-ptr): handles are numbers
    const HandleName name = NameOf(reinterpret_cast<HANDLE>(number));
    gap = name.is_open ? 0 : gap + 1;
    if (!name.key.empty()) see(name.key);
  }
}

}  // namespace

std::optional<RegistryValue> ReadRegistryValue(HKEY root, const std::string& path,
                                               const std::string& name) {
  const ReadKey key(root, path);
  DWORD type = 0;
  DWORD size = 0;
  const auto read = [&](BYTE* data) {
    return key.IsOpen() && RegQueryValueExA(key.Handle(), name.c_str(), nullptr, &type, data,
                                            &size) == ERROR_SUCCESS;
  };
  if (!read(nullptr)) return {};
  std::string bytes(size, '\0');
  if (!read(reinterpret_cast<BYTE*>(bytes.data()))) return {};
  bytes.resize(size);
  // The system ends texts that are not ended.
  if (type == REG_SZ && bytes.ends_with('\0')) bytes.pop_back();
  return RegistryValue{static_cast<platform::RegistryType>(type), std::move(bytes)};
}

bool HasRegistryKey(HKEY root, const std::string& path) { return ReadKey(root, path).IsOpen(); }

std::vector<std::string> OpenKeysBelow(HKEY root) {
  constexpr wchar_t kOfTheSystem[] = L"Software\\Microsoft\\";
  const std::wstring begin = NameOf(root).key + L'\\';
  std::vector<std::string> paths;
  ForEachOpenKey([&](const std::wstring& name) {
    if (!name.starts_with(begin)) return;
    const std::wstring path = name.substr(begin.size());
    if (!path.starts_with(kOfTheSystem)) paths.push_back(Utf8FromWide(path));
  });
  std::sort(paths.begin(), paths.end());
  return paths;
}

}  // namespace host
