#include "host/gltf/viewer/shown_position.h"

#include <algorithm>
#include <utility>

namespace host::gltf {

namespace {

bool MayBeHidden(const Node& node) {
  return node.Measurement()->made_by_import && node.Children().empty() &&
         node.Transform()->Scale().KeyCount() == 0;
}

}  // namespace

ShownPosition::ShownPosition(const Node& node)
    : position_(node.Transform()->Position()), key_count_(position_.KeyCount()) {
  const std::optional<Measured>& measured = node.Measurement();
  if (!measured || measured->gaps.empty() || measured->manner == GapManner::kOrigin) return;
  FillGaps(*measured);
  // There is no last place to hold of a node that never had one.
  may_hide_ = MayBeHidden(node) && (never_measured_ || measured->manner == GapManner::kHide);
}

void ShownPosition::FillGaps(const Measured& measured) {
  std::vector<bool> missing(key_count_);
  for (std::size_t key = 0; key < key_count_; ++key) {
    missing[key] = measured.IsMissing(position_.KeyTick(key));
  }
  const auto first = std::find(missing.begin(), missing.end(), false);
  never_measured_ = first == missing.end();
  if (never_measured_ || std::find(missing.begin(), missing.end(), true) == missing.end()) return;

  auto last_measured = static_cast<std::size_t>(first - missing.begin());
  places_.resize(key_count_);
  for (std::size_t key = 0; key < key_count_; ++key) {
    if (!missing[key]) last_measured = key;
    places_[key] = last_measured;
  }
  missing_ = std::move(missing);
}

std::vector<std::size_t> ShownPosition::Changes() const {
  std::vector<std::size_t> changes;
  if (!may_hide_ || missing_.empty()) return changes;
  for (std::size_t key = 0; key < key_count_; ++key) {
    if (key == 0 || missing_[key] != missing_[key - 1]) changes.push_back(key);
  }
  return changes;
}

std::size_t ShownPosition::KeyBefore(TimeValue time) const {
  std::size_t first = 0;
  std::size_t count = key_count_;
  while (count > 1) {
    const std::size_t half = count / 2;
    if (position_.KeyTick(first + half) <= time) {
      first += half;
      count -= half;
    } else {
      count = half;
    }
  }
  return first;
}

Point3 ShownPosition::PlaceAt(TimeValue time) const {
  if (never_measured_) return position_.Constant();
  if (missing_.empty()) return position_.ValueAt(time);
  const std::size_t key = KeyBefore(time);
  const bool is_last = key + 1 == key_count_ || time <= position_.KeyTick(key);
  const bool is_known = !IsMissing(key) && (is_last || !IsMissing(key + 1));
  return is_known ? position_.ValueAt(time) : position_.KeyValue(PlaceAtKey(key));
}

bool ShownPosition::IsHiddenAt(TimeValue time) const {
  if (!may_hide_) return false;
  return never_measured_ || (!missing_.empty() && IsHiddenAtKey(KeyBefore(time)));
}

}  // namespace host::gltf
