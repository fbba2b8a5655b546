#include "platform/shared_library.h"

#include <windows.h>

#include <filesystem>
#include <system_error>

#include "platform/windows/text.h"

namespace platform {
namespace {

class LoadedDll final : public SharedLibrary {
 public:
  explicit LoadedDll(HMODULE handle) : handle_(handle) {}
  LoadedDll(const LoadedDll&) = delete;
  LoadedDll& operator=(const LoadedDll&) = delete;
  ~LoadedDll() override { FreeLibrary(handle_); }

  void* Find(const char* name) override {
    return reinterpret_cast<void*>(GetProcAddress(handle_, name));
  }

 private:
  HMODULE handle_;
};

}  // namespace

std::unique_ptr<SharedLibrary> SharedLibrary::Open(const std::string& path, std::string& failure) {
  // A bare file name would be looked for in the system's folders.
  std::error_code error;
  const std::filesystem::path file = std::filesystem::absolute(WideFromUtf8(path), error);
  if (error) {
    failure = error.message();
    return nullptr;
  }
  const HMODULE handle = LoadLibraryExW(file.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
  if (handle == nullptr) {
    failure = LastErrorText();
    return nullptr;
  }
  return std::make_unique<LoadedDll>(handle);
}

}  // namespace platform
