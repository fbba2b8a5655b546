#pragma once

#include <algorithm>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

#include "sdk/core/types.h"

// The keys of a controller as a container: what lies between two of them is not its business. Each
// controller owns its own.

namespace host {

// The keys of a controller, in rising order of their ticks, in contiguous memory but for one gap.
// The gap stays where keys were last made or deleted, so that making and deleting keys in order is
// cheap wherever they are: the next one belongs in the gap. Deleting at a tick without a key
// remembers the stretch without keys around it: importers clear a range tick by tick, and nearly
// all of those calls end there.
template <typename Value>
class Keys {
 public:
  struct Key {
    TimeValue tick = 0;
    Value value{};
  };

  std::size_t Size() const { return buffer_.size() - (gap_end_ - gap_begin_); }
  bool IsEmpty() const { return Size() == 0; }

  // Key number `i`.
  // REQUIRES: `i` is less than Size().
  const Key& operator[](std::size_t i) const {
    assert(i < Size());
    return buffer_[Slot(i)];
  }

  // The number of the first key at or after `tick`; Size() when there is none.
  std::size_t LowerBound(TimeValue tick) const {
    if (BelongsInGap(tick)) return gap_begin_;
    std::size_t first = 0;
    std::size_t count = Size();
    while (count > 0) {
      const std::size_t half = count / 2;
      if ((*this)[first + half].tick < tick) {
        first += half + 1;
        count -= half + 1;
      } else {
        count = half;
      }
    }
    return first;
  }

  // Makes the key at `tick`, or replaces its value.
  void Set(TimeValue tick, const Value& value) {
    const std::size_t i = LowerBound(tick);
    if (HasTick(i, tick)) {
      buffer_[Slot(i)].value = value;
      return;
    }
    Insert(i, Key{tick, value});
    ForgetEmptyStretch();
  }

  // Replaces the value of key number `i`.
  // REQUIRES: `i` is less than Size().
  void Replace(std::size_t i, const Value& value) {
    assert(i < Size());
    buffer_[Slot(i)].value = value;
  }

  // Deletes the key at `tick`; returns whether there was one.
  bool Delete(TimeValue tick) {
    if (empty_after_ < tick && tick < empty_before_) return false;
    return DeleteOutsideEmptyStretch(tick);
  }

  void Clear() {
    buffer_.clear();
    gap_begin_ = gap_end_ = 0;
    RememberEmptyStretchBefore(0);
  }

 private:
  static constexpr std::int64_t kBeforeAllTicks = std::numeric_limits<std::int64_t>::min();
  static constexpr std::int64_t kAfterAllTicks = std::numeric_limits<std::int64_t>::max();

  bool IsGapClosed() const { return gap_begin_ == gap_end_; }
  std::size_t Slot(std::size_t i) const { return i < gap_begin_ ? i : i + (gap_end_ - gap_begin_); }
  bool HasTick(std::size_t i, TimeValue tick) const {
    return i < Size() && (*this)[i].tick == tick;
  }

  // Whether a key at `tick` stands, or would stand, directly behind the gap.
  bool BelongsInGap(TimeValue tick) const {
    return (gap_begin_ == 0 || buffer_[gap_begin_ - 1].tick < tick) &&
           (gap_end_ == buffer_.size() || tick <= buffer_[gap_end_].tick);
  }

  // Moves the gap, which may be closed, to before key number `i`.
  void MoveGapTo(std::size_t i) {
    if (gap_begin_ == i) return;
    if (IsGapClosed()) {
      gap_begin_ = gap_end_ = i;
      return;
    }
    const auto slot = [this](std::size_t n) {
      return buffer_.begin() + static_cast<std::ptrdiff_t>(n);
    };
    if (i < gap_begin_) {
      std::move_backward(slot(i), slot(gap_begin_), slot(gap_end_));
    } else {
      std::move(slot(gap_end_), slot(gap_end_ + (i - gap_begin_)), slot(gap_begin_));
    }
    gap_end_ = i + (gap_end_ - gap_begin_);
    gap_begin_ = i;
  }

  // The same, with room for a key in the gap. A closed gap is reopened at the end of the buffer,
  // as wide as there are keys.
  void OpenGapAt(std::size_t i) {
    if (IsGapClosed()) {
      gap_begin_ = buffer_.size();
      gap_end_ = 2 * buffer_.size();
      buffer_.resize(gap_end_);
    }
    MoveGapTo(i);
  }

  // Makes `key` number `i`. Behind all others it needs no gap, whose memory would be written to
  // before there are keys for it.
  void Insert(std::size_t i, const Key& key) {
    if (IsGapClosed() && i == buffer_.size()) {
      buffer_.push_back(key);
      gap_begin_ = gap_end_ = buffer_.size();
      return;
    }
    OpenGapAt(i);
    buffer_[gap_begin_++] = key;
  }

  // Never a part of Delete(): the calls that end there would save registers for this.
  [[gnu::noinline]] bool DeleteOutsideEmptyStretch(TimeValue tick);

  void ForgetEmptyStretch() { empty_after_ = empty_before_ = 0; }

  // There is no key between those number `i` - 1 and `i`.
  void RememberEmptyStretchBefore(std::size_t i) {
    empty_after_ = i > 0 ? (*this)[i - 1].tick : kBeforeAllTicks;
    empty_before_ = i < Size() ? (*this)[i].tick : kAfterAllTicks;
  }

  std::vector<Key> buffer_;
  std::size_t gap_begin_ = 0;
  std::size_t gap_end_ = 0;

  // No key lies between these two ticks, both excluded.
  std::int64_t empty_after_ = kBeforeAllTicks;
  std::int64_t empty_before_ = kAfterAllTicks;
};

template <typename Value>
bool Keys<Value>::DeleteOutsideEmptyStretch(TimeValue tick) {
  const std::size_t i = LowerBound(tick);
  const bool found = HasTick(i, tick);
  if (found) {
    MoveGapTo(i);
    ++gap_end_;
  }
  RememberEmptyStretchBefore(i);
  return found;
}

}  // namespace host
