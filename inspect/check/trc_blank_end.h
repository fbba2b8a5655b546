#pragma once

#include <cstddef>
#include <optional>

// Lines without anything that may be the last of a TRC file, as they come one after the other.
// Lines count from 1, and a long one comes in pieces; nothing fails.

namespace orvane::trc {

class BlankEnd {
 public:
  // Takes the next line, or piece of one.
  void Take(std::size_t line, bool is_blank) {
    if (!is_blank) {
      has_values_ = true;
      begin_.reset();
    } else if (!begin_ && has_values_) {
      begin_ = line;
    }
  }

  // The first line behind all that hold anything, if there are any such lines and others before.
  [[nodiscard]] std::optional<std::size_t> Begin() const { return begin_; }

 private:
  bool has_values_ = false;
  std::optional<std::size_t> begin_;
};

}  // namespace orvane::trc
