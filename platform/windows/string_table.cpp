#include "platform/string_table.h"

#include <windows.h>

#include <algorithm>
#include <cassert>
#include <limits>

namespace platform {

std::size_t LoadStringResource(HINSTANCE module, unsigned int id, char* buffer, std::size_t size) {
  constexpr std::size_t kLargest = std::numeric_limits<int>::max();
  assert(buffer != nullptr && size > 0);
  buffer[0] = '\0';
  if (module == nullptr) return 0;  // which to the system is the program
  const int room = static_cast<int>(std::min(size, kLargest));
  return static_cast<std::size_t>(LoadStringA(module, id, buffer, room));
}

}  // namespace platform
