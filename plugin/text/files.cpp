#include "plugin/text/files.h"

#include <cstddef>
#include <exception>
#include <filesystem>
#include <ios>

namespace orvane {
namespace {

constexpr std::size_t kExtensionLength = 4;
constexpr std::size_t kChunk = std::size_t{64} * 1024;

std::filesystem::path PathOf(const std::string& utf8_name) {
  return std::filesystem::path(std::u8string(utf8_name.begin(), utf8_name.end()));
}

// Reads to the end; `expected_size` only saves growing.
std::optional<std::string> ReadAll(std::ifstream& stream, std::size_t expected_size) {
  std::string bytes;
  std::size_t wanted = expected_size + 1;  // one more, to meet the end
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

std::ofstream Create(const std::string& name, std::ios::openmode mode) try {
  return std::ofstream(PathOf(name), mode | std::ios::out | std::ios::trunc);
} catch (const std::exception&) {
  return {};  // a name that is no UTF-8
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
  const std::filesystem::path path = PathOf(name);
  const std::filesystem::file_status status = std::filesystem::status(path);
  const bool is_regular = std::filesystem::is_regular_file(status);
  if (!is_regular && !std::filesystem::is_fifo(status)) return std::nullopt;
  std::ifstream stream(path, std::ios::binary);
  if (!stream) return std::nullopt;
  return ReadAll(stream, is_regular ? std::filesystem::file_size(path) : 0);
} catch (const std::exception&) {
  return std::nullopt;  // a name that is no UTF-8, an error of the file system, no memory
}

std::ofstream CreateFileForBytes(const std::string& name) { return Create(name, std::ios::binary); }

std::ofstream CreateFileForText(const std::string& name) { return Create(name, {}); }

}  // namespace orvane
