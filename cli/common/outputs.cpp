#include "cli/common/outputs.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>

#include "platform/file_place.h"
#include "platform/path_text.h"

namespace cli {

Complaint ReplacesInput(const std::string& output) {
  return {output, "is an input, and would be an output too", ""};
}

void RequireNoInput(const std::string& output, const std::vector<std::string>& inputs) {
  const std::string place = platform::PlaceOf(output);
  const bool is_input = std::any_of(inputs.begin(), inputs.end(), [&place](const auto& input) {
    return platform::PlaceOf(input) == place;
  });
  if (is_input) throw Failure{ExitStatus::kWrongUsage, {ReplacesInput(output)}};
}

Complaint ComplainAboutOutput(const std::string& path, const platform::OutputFile& file,
                              const std::string& reason) {
  if (file.IsReadOnly()) {
    return {path, reason, "It is kept, also with --force; make it writable first."};
  }
  return {path, reason, file.IsTaken() ? "It is kept; --force replaces it." : ""};
}

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
  std::string bytes(static_cast<std::size_t>(std::filesystem::file_size(file)), '\0');
  stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  bytes.resize(static_cast<std::size_t>(stream.gcount()));
  return bytes;
}

}  // namespace cli
