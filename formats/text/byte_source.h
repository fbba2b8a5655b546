#pragma once

#include <cstddef>
#include <span>
#include <string_view>

// Bytes that are given out from first to last, of which nobody keeps those that were. Whoever makes
// a source owns it. It is for one thread at a time, and tells in a way of its own when no more can
// be read: to whoever reads it, that is its end.
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

// Those of a text in memory, which must outlive this.
class MemorySource final : public ByteSource {
 public:
  explicit MemorySource(std::string_view bytes) : rest_(bytes), size_(bytes.size()) {}

  [[nodiscard]] std::size_t Read(std::span<char> block) override {
    const std::size_t count = rest_.copy(block.data(), block.size());
    rest_.remove_prefix(count);
    return count;
  }
  [[nodiscard]] std::size_t Size() const override { return size_; }

 private:
  std::string_view rest_;
  std::size_t size_;
};

// Fills `block` with the next bytes of `source`. Returns how many: fewer than it takes at the end
// alone.
[[nodiscard]] inline std::size_t ReadFully(ByteSource& source, std::span<char> block) {
  std::size_t filled = 0;
  while (filled < block.size()) {
    const std::size_t count = source.Read(block.subspan(filled));
    if (count == 0) break;
    filled += count;
  }
  return filled;
}

}  // namespace orvane
