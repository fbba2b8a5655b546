#pragma once

#include <cstddef>
#include <string>
#include <vector>

// Bytes that are collected for a file.

namespace host::gltf {

// Bytes in blocks, which stay where they are as more are added: a single text of all of them takes
// up to three times the memory while it grows. What is added at a time stays together.
class Blocks {
 public:
  // The last block, to append to until the next call.
  std::string& Tail() {
    if (blocks_.empty()) blocks_.emplace_back();
    if (blocks_.back().size() >= kBlockSize) {
      blocks_.emplace_back();
      blocks_.back().reserve(kBlockSize + kRoomForTheLast);
    }
    return blocks_.back();
  }

  // In their order; some may be empty.
  const std::vector<std::string>& All() const { return blocks_; }

 private:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 16U;
  static constexpr std::size_t kRoomForTheLast = std::size_t{1} << 10U;

  std::vector<std::string> blocks_;
};

}  // namespace host::gltf
