#include "platform/string_table.h"

#include <cassert>
#include <cstring>
#include <string>

#include "platform/portable/module_resources.h"
#include "platform/portable/resource_file.h"

namespace platform {
namespace {

// The length of the longest beginning of `text` that fits into `limit` bytes and ends between two
// characters.
std::size_t FittingLength(const std::string& text, std::size_t limit) {
  if (text.size() <= limit) return text.size();
  while (limit > 0 && (static_cast<unsigned char>(text[limit]) & 0xC0U) == 0x80U) --limit;
  return limit;
}

}  // namespace

std::size_t LoadStringResource(HINSTANCE module, unsigned int id, char* buffer, std::size_t size) {
  assert(buffer != nullptr && size > 0);
  const std::string text = FindString(ResourceFileOf(module), id);
  const std::size_t length = FittingLength(text, size - 1);
  std::memcpy(buffer, text.data(), length);
  buffer[length] = '\0';
  return length;
}

}  // namespace platform
