#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>

#include "formats/text/byte_source.h"

// Bytes in blocks, for tests.
namespace test {

// Gives out the first `first` bytes, if any, and then `size` of them at a time.
class Blocks final : public orvane::ByteSource {
 public:
  Blocks(std::string_view bytes, std::size_t first, std::size_t size)
      : size_(bytes.size()), rest_(bytes), next_(first > 0 ? first : size), following_(size) {}

  [[nodiscard]] std::size_t Read(std::span<char> block) override {
    const std::size_t count = rest_.copy(block.data(), std::min(next_, block.size()));
    rest_.remove_prefix(count);
    next_ = following_;
    return count;
  }
  [[nodiscard]] std::size_t Size() const override { return size_; }

 private:
  std::size_t size_;
  std::string_view rest_;
  std::size_t next_;
  std::size_t following_;
};

}  // namespace test
