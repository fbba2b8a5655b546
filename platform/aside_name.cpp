#include "platform/aside_name.h"

namespace platform {
namespace {

constexpr std::string_view kAsidePrefix = ".orvane-";

bool IsNumber(std::string_view text) {
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

std::string Numbers(std::uint64_t process, int number) {
  return std::to_string(process) + "-" + std::to_string(number);
}

}  // namespace

std::string AsideName(std::uint64_t process, int number) {
  return std::string(kAsidePrefix) + Numbers(process, number);
}

bool IsAsideName(std::string_view name) {
  if (name.substr(0, kAsidePrefix.size()) != kAsidePrefix) return false;
  name.remove_prefix(kAsidePrefix.size());
  const std::size_t dash = name.find('-');
  return dash != std::string_view::npos && IsNumber(name.substr(0, dash)) &&
         IsNumber(name.substr(dash + 1));
}

std::string ScratchFolderName(std::uint64_t process, int number) {
  return kScratchFolderPrefix + Numbers(process, number);
}

}  // namespace platform
