#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "web/core/take.h"

// What a call from the page's side leaves to be fetched: a text, which is JSON, and arrays of
// numbers, which are fetched in one piece each.

namespace web {

// An array of numbers of any kind, whose bytes JavaScript copies out.
class Block {
 public:
  template <typename Number>
  explicit Block(std::vector<Number> numbers)
      : size_(numbers.size() * sizeof(Number)),
        numbers_(std::make_shared<std::vector<Number>>(std::move(numbers))),
        data_(static_cast<const std::vector<Number>*>(numbers_.get())->data()) {}

  [[nodiscard]] const void* Data() const { return data_; }
  [[nodiscard]] std::size_t Size() const { return size_; }  // in bytes

 private:
  std::size_t size_;
  std::shared_ptr<void> numbers_;
  const void* data_;
};

struct Answer {
  bool is_failure = false;
  std::string text;
  std::vector<Block> blocks;
};

// Of a file that cannot be opened, or of what cannot be done.
[[nodiscard]] Answer FailureAnswer(const Refusal& refusal);

// The take in words, and behind them: the part of the frames that hold each object (float), gaps as
// object, first and last frame (int), positions and ends (float). Throws orvane::ArrayTooLarge.
[[nodiscard]] Answer DescribeTake(const Take& take);

}  // namespace web
