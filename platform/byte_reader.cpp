#include "platform/byte_reader.h"

#include <algorithm>
#include <cassert>

namespace platform {

std::uint8_t ByteReader::Read8() {
  const auto bytes = Take(1);
  return bytes.empty() ? std::uint8_t{0} : std::to_integer<std::uint8_t>(bytes[0]);
}

std::uint16_t ByteReader::Read16() {
  const auto bytes = Take(2);
  if (bytes.empty()) return 0;
  return static_cast<std::uint16_t>(std::to_integer<unsigned>(bytes[0]) |
                                    std::to_integer<unsigned>(bytes[1]) << 8U);
}

std::uint32_t ByteReader::Read32() {
  const std::uint32_t low = Read16();
  const std::uint32_t high = Read16();
  return failed_ ? 0 : low | high << 16U;
}

std::span<const std::byte> ByteReader::Take(std::size_t size) {
  if (failed_ || size > bytes_.size() - position_) {
    failed_ = true;
    return {};
  }
  const auto taken = bytes_.subspan(position_, size);
  position_ += size;
  return taken;
}

void ByteReader::Align(std::size_t size) {
  assert(size > 0);
  const std::size_t excess = position_ % size;
  if (excess != 0) position_ += std::min(size - excess, bytes_.size() - position_);
}

}  // namespace platform
