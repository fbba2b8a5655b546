#include "formats/text/files.h"

#include <cstddef>
#include <exception>
#include <filesystem>
#include <ios>
#include <system_error>

namespace orvane {
namespace {

constexpr std::size_t kExtensionLength = 4;
constexpr std::size_t kChunk = std::size_t{64} * 1024;

// A directory, which on some systems can be opened, or a device, which may never end. A name that
// the standard library does not find is left to the opening: that takes it as the system does.
bool IsUnfit(const std::string& name) {
  std::error_code ignored;
  const std::filesystem::file_status status = std::filesystem::status(name, ignored);
  return std::filesystem::exists(status) && !std::filesystem::is_regular_file(status) &&
         !std::filesystem::is_fifo(status);
}

// The bytes from here to the end; 0 when that cannot be told.
std::size_t SizeOf(std::ifstream& stream) {
  const std::streamoff size = stream.seekg(0, std::ios::end).tellg();
  stream.clear();
  stream.seekg(0);
  stream.clear();
  return size < 0 ? 0 : static_cast<std::size_t>(size);
}

std::optional<std::string> ReadAll(std::ifstream& stream) {
  std::string bytes;
  std::size_t wanted = SizeOf(stream) + 1;  // one more, to meet the end
  while (stream) {
    const std::size_t size = bytes.size();
    bytes.resize(size + wanted);
    stream.read(bytes.data() + size, static_cast<std::streamsize>(wanted));
    bytes.resize(size + static_cast<std::size_t>(stream.gcount()));
    wanted = kChunk;
  }
  if (stream.bad()) return std::nullopt;
  return bytes;
}

}  // namespace

// Intended: only the place of the full stop counts, so that "walk.txt" is opened as it is and
// "walk.html" is not.
std::string WithExtension(std::string_view name, std::string_view extension) {
  std::string result(name);
  const bool has_extension =
      name.size() >= kExtensionLength && name[name.size() - kExtensionLength] == '.';
  if (!has_extension) result += extension;
  return result;
}

std::optional<std::string> ReadFileBytes(const std::string& name) try {
  if (IsUnfit(name)) return std::nullopt;
  std::ifstream stream(name, std::ios::binary);
  if (!stream) return std::nullopt;
  return ReadAll(stream);
} catch (const std::exception&) {
  return std::nullopt;  // a name that the standard library cannot convert, or no memory
}

std::ofstream CreateFileForBytes(const std::string& name) {
  return std::ofstream(name, std::ios::binary | std::ios::trunc);
}

std::ofstream CreateFileForText(const std::string& name) {
  return std::ofstream(name, std::ios::trunc);
}

}  // namespace orvane
