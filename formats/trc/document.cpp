#include "formats/trc/document.h"

#include "formats/units/units.h"

namespace orvane {

void TRCDocument::Reset() {
  names_.clear();
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
  if (names_.contains(marker.Name())) return nullptr;
  TRCMarker& stored = markers_.emplace_back(marker);
  stored.name_.Watch(names_changed_);
  names_.insert(stored.Name());
  return &stored;
}

void TRCDocument::ConvertUnits(std::int32_t code) {
  if (code != units_) {
    Scale(LengthFactor(static_cast<std::uint32_t>(units_), static_cast<std::uint32_t>(code)));
  }
  units_ = code;
}

void TRCDocument::Scale(double factor) {
  for (TRCMarker& marker : markers_) marker.Scale(factor);
}

void TRCDocument::RefreshNames() {
  names_.clear();
  for (const TRCMarker& marker : markers_) names_.insert(marker.Name());
  names_changed_ = false;
}

}  // namespace orvane
