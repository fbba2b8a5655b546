#include "plugin/services/string_table.h"

#include "platform/string_table.h"

namespace orvane {

const char* StringTable::GetString(HINSTANCE module, unsigned int id) noexcept {
  try {
    const std::size_t length =
        platform::LoadStringResource(module, id, buffer_.data(), buffer_.size());
    return length == 0 ? nullptr : buffer_.data();
  } catch (...) {
    return nullptr;
  }
}

}  // namespace orvane
