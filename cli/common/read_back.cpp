#include "cli/common/read_back.h"

#include <cerrno>
#include <filesystem>
#include <fstream>

#include "platform/path_text.h"

namespace cli {

Failure NotReadBack(const std::string& name, const std::string& reason) {
  return {ExitStatus::kInputOutput, {{name, "could not be read back: " + reason, ""}}};
}

Failure NotReadBackForMemory(const std::string& name) {
  return NotReadBack(name, "There is not enough memory");
}

std::string BytesWritten(const std::string& path) {
  const std::filesystem::path file = platform::PathOf(path);
  if (!std::filesystem::exists(file)) return "";
  std::ifstream stream(file, std::ios::binary);
  if (!stream) throw std::system_error(errno, std::generic_category());
  stream.exceptions(std::ios::badbit);
  std::string bytes(std::filesystem::file_size(file), '\0');
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(stream.gcount()));
  return bytes;
}

}  // namespace cli
