#include "platform/shared_library.h"

#include <dlfcn.h>

#include <filesystem>
#include <system_error>

namespace platform {
namespace {

class LoadedSharedObject final : public SharedLibrary {
 public:
  explicit LoadedSharedObject(void* handle) : handle_(handle) {}
  LoadedSharedObject(const LoadedSharedObject&) = delete;
  LoadedSharedObject& operator=(const LoadedSharedObject&) = delete;
  ~LoadedSharedObject() override { dlclose(handle_); }

  void* Find(const char* name) override { return dlsym(handle_, name); }

 private:
  void* handle_;
};

}  // namespace

std::unique_ptr<SharedLibrary> SharedLibrary::Open(const std::string& path, std::string& failure) {
  // A bare file name would be looked for in the system's folders.
  std::error_code error;
  const std::filesystem::path file = std::filesystem::absolute(path, error);
  if (error) {
    failure = error.message();
    return nullptr;
  }
  void* handle = dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (handle == nullptr) {
    failure = dlerror();
    return nullptr;
  }
  return std::make_unique<LoadedSharedObject>(handle);
}

}  // namespace platform
