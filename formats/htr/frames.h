#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

// The frames of segments in one block of numbers, those of a segment one behind the other.
namespace orvane {

// Translation x, y and z, angles x, y and z, and scale. Plain numbers, since a document holds
// millions of them: as the objects that they are handed out as they would take half as much memory
// again.
using HtrFrame = std::array<double, 7>;
static_assert(sizeof(HtrFrame) == 7 * sizeof(double), "a block of frames is one of numbers");

using HtrFrameBlock = std::vector<HtrFrame>;

// The frames of one segment: a part of a block that several share, or all of one of its own. A copy
// has a block of its own. Frames are counted from 0.
class HtrSegmentFrames {
 public:
  HtrSegmentFrames() = default;
  // `count` frames of `block`, from `begin` on.
  HtrSegmentFrames(std::shared_ptr<HtrFrameBlock> block, std::size_t begin, std::size_t count)
      : block_(std::move(block)), begin_(begin), count_(count) {}
  HtrSegmentFrames(const HtrSegmentFrames& other);
  HtrSegmentFrames& operator=(HtrSegmentFrames other) noexcept;
  ~HtrSegmentFrames() = default;

  [[nodiscard]] std::size_t Count() const { return count_; }
  // REQUIRES: there is such a frame.
  const HtrFrame& operator[](std::size_t index) const { return (*block_)[begin_ + index]; }
  HtrFrame& operator[](std::size_t index) { return (*block_)[begin_ + index]; }

  // Whether they begin at frame `begin` of `block`.
  [[nodiscard]] bool BeginAt(const std::shared_ptr<HtrFrameBlock>& block, std::size_t begin) const {
    return block_ == block && begin_ == begin;
  }

  // Has frames of a segment that holds none so far go to `block`.
  void Share(const std::shared_ptr<HtrFrameBlock>& block) {
    if (count_ == 0) block_ = block;
  }
  // Makes room for `count` frames in all.
  void Reserve(std::size_t count);
  // Behind those of another segment, the first time, this takes time for all frames held.
  void Append(const HtrFrame& frame) {
    if (!EndsBlock()) MakeRoomBehind();
    block_->push_back(frame);
    ++count_;
  }

 private:
  [[nodiscard]] bool EndsBlock() const {
    return block_ != nullptr && begin_ + count_ == block_->size();
  }
  void MakeRoomBehind();

  std::shared_ptr<HtrFrameBlock> block_;  // null while there is none
  std::size_t begin_ = 0;
  std::size_t count_ = 0;
};

}  // namespace orvane
