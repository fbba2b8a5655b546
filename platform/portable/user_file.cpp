#include "platform/portable/user_file.h"

#include <cstdlib>
#include <filesystem>

namespace platform {
namespace {

namespace fs = std::filesystem;

fs::path FolderFromEnvironment(const char* variable) {
  const char* const value = std::getenv(variable);
  const fs::path folder(value == nullptr ? "" : value);
  return folder.is_absolute() ? folder : fs::path();
}

fs::path UserFolder(const char* variable, const char* fallback) {
  const fs::path folder = FolderFromEnvironment(variable);
  if (!folder.empty()) return folder;
  const fs::path home = FolderFromEnvironment("HOME");
  return home.empty() ? home : home / fallback;
}

}  // namespace

std::string UserFile(const char* variable, const char* fallback, const char* name) {
  const fs::path folder = UserFolder(variable, fallback);
  return folder.empty() ? std::string() : (folder / "orvane" / name).string();
}

}  // namespace platform
