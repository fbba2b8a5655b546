#include "platform/shared_library.h"

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/web/linked_library.h"

namespace platform {
namespace {

struct LinkedLibrary {
  std::string path;
  std::span<const LinkedFunction> functions;
};

std::vector<LinkedLibrary>& LinkedLibraries() {
  static std::vector<LinkedLibrary> libraries;
  return libraries;
}

class OfferedLibrary final : public SharedLibrary {
 public:
  explicit OfferedLibrary(std::span<const LinkedFunction> functions) : functions_(functions) {}

  void* Find(const char* name) override {
    const auto is_named = [name](const LinkedFunction& function) {
      return function.name == std::string_view(name);
    };
    const auto found = std::find_if(functions_.begin(), functions_.end(), is_named);
    return found == functions_.end() ? nullptr : found->address;
  }

 private:
  std::span<const LinkedFunction> functions_;
};

}  // namespace

void OfferLinkedLibrary(std::string path, std::span<const LinkedFunction> functions) {
  LinkedLibraries().push_back({std::move(path), functions});
}

std::unique_ptr<SharedLibrary> SharedLibrary::Open(const std::string& path, std::string& failure) {
  for (const LinkedLibrary& library : LinkedLibraries()) {
    if (library.path == path) return std::make_unique<OfferedLibrary>(library.functions);
  }
  failure = "no such library is a part of this program";
  return nullptr;
}

}  // namespace platform
