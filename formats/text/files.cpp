#include "formats/text/files.h"

#include <cstddef>
#include <exception>
#include <filesystem>
#include <ios>
#include <system_error>
#include <utility>

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

// The bytes from here to the end; nothing when that cannot be told.
std::optional<std::size_t> SizeOf(std::ifstream& stream) {
  const std::streamoff size = stream.seekg(0, std::ios::end).tellg();
  stream.clear();
  stream.seekg(0);
  stream.clear();
  return size < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(size));
}

std::optional<std::string> ReadAll(std::ifstream& stream) {
  std::string bytes;
  std::size_t wanted = SizeOf(stream).value_or(0) + 1;  // one more, to meet the end
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

FileSource::FileSource(const std::string& name) {
  try {
    is_open_ = Open(name);
  } catch (const std::exception&) {
    is_open_ = false;  // a name that the standard library cannot convert, or no memory
  }
}

bool FileSource::Open(const std::string& name) {
  if (IsUnfit(name)) return false;
  stream_.open(name, std::ios::binary);
  if (!stream_) return false;
  if (const auto size = SizeOf(stream_)) {
    size_ = *size;
    return true;
  }
  std::optional<std::string> bytes = ReadAll(stream_);
  if (!bytes) return false;
  whole_ = std::move(*bytes);
  size_ = whole_.size();
  return true;
}

std::size_t FileSource::Read(std::span<char> block) {
  if (!whole_.empty()) {
    const std::size_t count = whole_.copy(block.data(), block.size(), taken_);
    taken_ += count;
    return count;
  }
  stream_.read(block.data(), static_cast<std::streamsize>(block.size()));
  has_failed_ = stream_.bad();
  return static_cast<std::size_t>(stream_.gcount());
}

std::ofstream CreateFileForBytes(const std::string& name) {
  return std::ofstream(name, std::ios::binary | std::ios::trunc);
}

std::ofstream CreateFileForText(const std::string& name) {
  return std::ofstream(name, std::ios::trunc);
}

}  // namespace orvane
