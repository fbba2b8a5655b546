#include "formats/trc/marker.h"

namespace orvane {

TRCMarker::TRCMarker(const TRCMarker& other)
    : name_(other.name_),
      enabled_(other.enabled_),
      block_(other.CopyOfColumn()),
      scaled_count_(other.scaled_count_) {}

TRCMarker& TRCMarker::operator=(const TRCMarker& other) {
  if (this == &other) return *this;
  name_ = other.name_;
  enabled_ = other.enabled_;
  block_ = other.CopyOfColumn();
  column_ = 0;
  scaled_count_ = other.scaled_count_;
  return *this;
}

bool TRCMarker::SetSample(std::size_t index, double x, double y, double z) {
  if (index >= SampleCount()) return false;
  if (block_->SetPosition(index, column_, x, y, z)) return true;
  return Own().SetPosition(index, column_, x, y, z);
}

void TRCMarker::Scale(double factor) {
  Own().Scale(factor);
  scaled_count_ = SampleCount();
}

std::vector<TRCMarker::Gap> TRCMarker::Gaps() const {
  std::vector<Gap> gaps;
  std::size_t begin = 0;
  for (std::size_t index = 0; index < HeldCount(); ++index) {
    if (PositionAt(index) == nullptr) continue;
    if (begin < index) gaps.push_back({begin, index});
    begin = index + 1;
  }
  if (begin < SampleCount()) gaps.push_back({begin, SampleCount()});
  return gaps;
}

// The samples in a block that has no other column.
TRCSampleBlock& TRCMarker::Own() {
  if (block_ == nullptr) block_ = std::make_shared<TRCSampleBlock>(1);
  if (block_->ColumnCount() > 1) {
    block_ = CopyOfColumn();
    column_ = 0;
  }
  return *block_;
}

std::shared_ptr<TRCSampleBlock> TRCMarker::CopyOfColumn() const {
  if (block_ == nullptr) return nullptr;
  if (block_->ColumnCount() == 1) return std::make_shared<TRCSampleBlock>(*block_);
  auto copy = std::make_shared<TRCSampleBlock>(1);
  copy->Reserve(HeldCount());
  for (std::size_t index = 0; index < HeldCount(); ++index) {
    if (const double* const position = PositionAt(index)) {
      copy->AppendPosition(position[0], position[1], position[2]);
    } else {
      copy->AppendDropouts(1);
    }
  }
  copy->AppendDropouts(SampleCount() - HeldCount());
  copy->ShrinkToFit();
  return copy;
}

}  // namespace orvane
