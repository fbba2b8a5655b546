#pragma once

#include <cstddef>
#include <vector>

#include "host/scene/node.h"

// What a viewer is shown of a node's position where it was not measured. Importers key a missing
// sample at the origin, where nothing was seen.

namespace host::gltf {

// The place of a node for viewers. In its gaps it rests at the last measured place, before the
// first at that, and is hidden if that is wished and nobody else relies on its look: an import made
// it, it has no children and no scale keys. Keys are told by their numbers in the position
// controller.
class ShownPosition {
 public:
  // `node` outlives this.
  explicit ShownPosition(const Node& node);

  // Whether viewers are shown its keys: not of a node that was never measured.
  bool IsAnimated() const { return key_count_ > 0 && !never_measured_; }

  // The key whose place is shown at key number `key`.
  std::size_t PlaceAtKey(std::size_t key) const { return places_.empty() ? key : places_[key]; }

  // The keys at which the node is hidden or comes back, with the first one that it has, beginning
  // with what IsHiddenAtKey tells of that; none when it is hidden throughout or never.
  std::vector<std::size_t> Changes() const;
  bool IsHiddenAtKey(std::size_t key) const { return may_hide_ && IsMissing(key); }

  // The same at `time` (ticks).
  Point3 PlaceAt(TimeValue time) const;
  bool IsHiddenAt(TimeValue time) const;

 private:
  bool IsMissing(std::size_t key) const { return !missing_.empty() && missing_[key]; }

  // Finds out which keys are missing, and what is shown instead.
  void FillGaps(const Measured& measured);

  // The last key at or before `time`, or the first.
  // REQUIRES: there is one.
  std::size_t KeyBefore(TimeValue time) const;

  const PositionController& position_;
  std::size_t key_count_;
  bool may_hide_ = false;
  bool never_measured_ = false;

  // By key; both empty when none is missing.
  std::vector<bool> missing_;
  std::vector<std::size_t> places_;
};

}  // namespace host::gltf
