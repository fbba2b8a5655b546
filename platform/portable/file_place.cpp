#include "platform/file_place.h"

#include <filesystem>
#include <system_error>

namespace platform {

namespace fs = std::filesystem;

// Made absolute first, because the standard library leaves a relative path relative when nothing of
// it exists.
std::string PlaceOf(const std::string& path) {
  std::error_code error;
  const fs::path absolute = fs::absolute(path, error);
  const fs::path place = fs::weakly_canonical(absolute, error);
  return (error ? absolute.lexically_normal() : place).string();
}

}  // namespace platform
