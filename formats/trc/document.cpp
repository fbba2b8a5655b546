#include "formats/trc/document.h"

#include <algorithm>
#include <limits>
#include <memory>

#include "formats/array/array_too_large.h"
#include "formats/units/units.h"

namespace orvane {

void TRCDocument::Reset() {
  by_name_.Clear();
  names_changed_ = false;
  markers_.clear();
  units_ = 0;
  data_rate_ = 60;
  num_frames_ = 0;
  first_frame_ = 1;
}

TRCMarker* TRCDocument::MarkerAt(std::size_t index) {
  return index < markers_.size() ? &markers_[index] : nullptr;
}

const TRCMarker* TRCDocument::MarkerAt(std::size_t index) const {
  return index < markers_.size() ? &markers_[index] : nullptr;
}

TRCMarker* TRCDocument::AddMarker(const TRCMarker& marker) {
  if (names_changed_) RefreshNames();
  by_name_.MakeRoom();
  TRCMarker& stored = markers_.emplace_back(marker);
  if (!by_name_.Add(stored.Name(), markers_.size() - 1, NameAt())) {
    markers_.pop_back();
    return nullptr;
  }
  stored.name_.Watch(names_changed_);
  return &stored;
}

// Whether the markers are the columns of one block, in their order.
bool TRCDocument::SharesBlock() const {
  if (markers_.empty() || markers_.front().block_ == nullptr) return false;
  const TRCSampleBlock* const block = markers_.front().block_.get();
  if (block->ColumnCount() != markers_.size()) return false;
  std::size_t column = 0;
  return std::all_of(markers_.begin(), markers_.end(), [&](const TRCMarker& marker) {
    return marker.block_.get() == block && marker.column_ == column++;
  });
}

TRCSampleBlock& TRCDocument::ShareBlock() {
  if (!SharesBlock()) JoinColumns();
  return *markers_.front().block_;
}

void TRCDocument::JoinColumns() {
  std::vector<TRCSampleBlock::Column> columns;
  columns.reserve(markers_.size());
  for (const TRCMarker& marker : markers_) {
    columns.push_back({marker.block_.get(), marker.column_, marker.scaled_count_});
  }
  const auto block = std::make_shared<TRCSampleBlock>(TRCSampleBlock::Join(columns));
  for (std::size_t column = 0; column < markers_.size(); ++column) {
    markers_[column].block_ = block;
    markers_[column].column_ = column;
  }
}

TRCPointsView TRCDocument::PointsView() {
  if (markers_.empty()) return {};
  if (!SharesBlock() || !markers_.front().block_->IsWhole()) {
    RequireProportionOfPoints();
    JoinColumns();
  }
  const TRCSampleBlock& block = *markers_.front().block_;
  const std::size_t stride = TRCSampleBlock::kCoordinates;
  return {block.RowCount() == 0 ? nullptr : block.Numbers(),
          block.RowCount(),
          markers_.size(),
          stride * markers_.size(),
          stride,
          block.Measured()};
}

void TRCDocument::RequireProportionOfPoints() const {
  constexpr std::uint64_t kSample = TRCSampleBlock::kCoordinates * sizeof(double);
  std::uint64_t frames = 0;
  for (const TRCMarker& marker : markers_) {
    frames = std::max<std::uint64_t>(frames, marker.SampleCount());
  }
  std::uint64_t positions = 0;
  VisitPositions([&positions](std::size_t, std::size_t, const double*) { ++positions; });
  const std::uint64_t row = kSample * markers_.size();
  const std::uint64_t most_rows = std::numeric_limits<std::uint64_t>::max() / row;
  RequireProportion(row * std::min(frames, most_rows), kSample * positions);
}

std::vector<std::vector<TRCMarker::Gap>> TRCDocument::Gaps() const {
  if (SharesBlock()) return markers_.front().block_->Gaps();
  std::vector<std::vector<TRCMarker::Gap>> gaps;
  gaps.reserve(markers_.size());
  for (const TRCMarker& marker : markers_) gaps.push_back(marker.Gaps());
  return gaps;
}

void TRCDocument::ConvertUnits(std::int32_t code) {
  if (code != units_) {
    Scale(LengthFactor(static_cast<std::uint32_t>(units_), static_cast<std::uint32_t>(code)));
  }
  units_ = code;
}

void TRCDocument::Scale(double factor) {
  const bool shares_block = SharesBlock();
  if (shares_block) markers_.front().block_->Scale(factor);
  for (TRCMarker& marker : markers_) {
    if (!shares_block) marker.Scale(factor);
    marker.scaled_count_ = marker.SampleCount();
  }
}

void TRCDocument::RefreshNames() {
  by_name_.Clear();
  for (std::size_t index = 0; index < markers_.size(); ++index) {
    by_name_.Add(markers_[index].Name(), index, NameAt());
  }
  names_changed_ = false;
}

}  // namespace orvane
