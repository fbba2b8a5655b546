#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

// Little-endian numbers, one after the other, out of bytes that may end at any place.

namespace platform {

// Reads from `bytes`, which must outlive it. Reading past the end fails: it gives 0 or no bytes,
// and so does everything after it.
class ByteReader {
 public:
  explicit ByteReader(std::span<const std::byte> bytes) : bytes_(bytes) {}

  std::uint8_t Read8();
  std::uint16_t Read16();
  std::uint32_t Read32();

  // The next `size` bytes, a view into what is being read.
  std::span<const std::byte> Take(std::size_t size);

  // Moves on to the next multiple of `size` bytes from the start, or to the end if that is nearer.
  // REQUIRES: `size` is 1 or more.
  void Align(std::size_t size);

  [[nodiscard]] bool Failed() const { return failed_; }
  [[nodiscard]] bool AtEnd() const { return position_ == bytes_.size(); }

 private:
  std::span<const std::byte> bytes_;
  std::size_t position_ = 0;
  bool failed_ = false;
};

}  // namespace platform
