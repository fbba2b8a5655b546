#include "platform/program.h"

#include <filesystem>
#include <system_error>

namespace platform {

std::string ProgramFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? "." : program.parent_path().string();
}

void WorkUnseen() {}

}  // namespace platform
