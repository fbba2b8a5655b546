#include "formats/htr/frames.h"

#include <algorithm>

namespace orvane {

HtrSegmentFrames::HtrSegmentFrames(const HtrSegmentFrames& other) : count_(other.count_) {
  if (count_ == 0) return;
  const HtrFrame* const first = other.block_->data() + other.begin_;
  block_ = std::make_shared<HtrFrameBlock>(first, first + count_);
}

HtrSegmentFrames& HtrSegmentFrames::operator=(HtrSegmentFrames other) noexcept {
  block_.swap(other.block_);
  begin_ = other.begin_;
  count_ = other.count_;
  return *this;
}

void HtrSegmentFrames::Reserve(std::size_t count) {
  if (!EndsBlock()) MakeRoomBehind();
  const std::size_t needed = begin_ + count;
  // Twice as much, so that the block is not copied for each of many segments.
  if (needed > block_->capacity()) block_->reserve(std::max(needed, 2 * block_->capacity()));
}

// A segment without frames begins at the end of its block; another goes on in one of its own.
void HtrSegmentFrames::MakeRoomBehind() {
  if (count_ > 0) {
    *this = HtrSegmentFrames(*this);
  } else if (block_ == nullptr) {
    block_ = std::make_shared<HtrFrameBlock>();
    begin_ = 0;
  } else {
    begin_ = block_->size();
  }
}

}  // namespace orvane
