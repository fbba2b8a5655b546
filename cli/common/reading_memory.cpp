#include "cli/common/reading_memory.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <system_error>

#include "platform/path_text.h"
#include "platform/working_memory.h"

namespace cli {

void ExpectReading(const std::string& path) {
  std::error_code error;
  const std::uintmax_t size = std::filesystem::file_size(platform::PathOf(path), error);
  if (!error) platform::ExpectMemory(static_cast<std::size_t>(size));
}

}  // namespace cli
