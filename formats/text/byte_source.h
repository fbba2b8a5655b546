#pragma once

#include <cstddef>
#include <span>

// Bytes that are given out from first to last, of which nobody keeps those that were.
namespace orvane {

class ByteSource {
 public:
  virtual ~ByteSource() = default;

  // Puts the next bytes into `block`, which is not empty, and returns how many: as many as are at
  // hand, and 0 at the end alone.
  [[nodiscard]] virtual std::size_t Read(std::span<char> block) = 0;

  // How many bytes there are in all.
  [[nodiscard]] virtual std::size_t Size() const = 0;
};

}  // namespace orvane
