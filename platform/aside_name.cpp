#include "platform/aside_name.h"

#include <charconv>

namespace platform {
namespace {

constexpr std::string_view kAsidePrefix = ".orvane-";
constexpr std::string_view kScratchFolderPrefix = "~orvane-folder-";

std::string Name(std::string_view prefix, std::uint32_t process, int number) {
  return std::string(prefix) + std::to_string(process) + "-" + std::to_string(number);
}

// Numbers may be spelled in several ways, of which one is made.
std::optional<std::uint32_t> ProcessOf(std::string_view prefix, std::string_view name) {
  if (!name.starts_with(prefix)) return std::nullopt;
  const char* const end = name.data() + name.size();
  std::uint32_t process = 0;
  int number = 0;
  const char* const dash = std::from_chars(name.data() + prefix.size(), end, process).ptr;
  if (dash != end) std::from_chars(dash + 1, end, number);
  if (process == 0 || number < 0 || name != Name(prefix, process, number)) return std::nullopt;
  return process;
}

}  // namespace

std::string AsideName(std::uint32_t process, int number) {
  return Name(kAsidePrefix, process, number);
}

std::string ScratchFolderName(std::uint32_t process, int number) {
  return Name(kScratchFolderPrefix, process, number);
}

std::optional<std::uint32_t> ProcessOfAsideName(std::string_view name) {
  return ProcessOf(kAsidePrefix, name);
}

std::optional<std::uint32_t> ProcessOfScratchFolderName(std::string_view name) {
  return ProcessOf(kScratchFolderPrefix, name);
}

}  // namespace platform
