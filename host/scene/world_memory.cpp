#include "host/scene/world_memory.h"

namespace host {

const Matrix3* WorldMemory::Find(const Node& node, TimeValue time) {
  const auto track = tracks_.find(&node);
  if (track == tracks_.end()) return nullptr;
  MarkUsed(track->second);
  const auto kept = track->second.transforms.find(time);
  return kept == track->second.transforms.end() ? nullptr : &kept->second;
}

void WorldMemory::Keep(const Node& node, TimeValue time, const Matrix3& transform) {
  while (size_ >= most_) Forget(*by_use_.back());
  const auto [track, is_new] = tracks_.try_emplace(&node);
  if (is_new) track->second.place = by_use_.insert(by_use_.begin(), &node);
  MarkUsed(track->second);
  size_ += track->second.transforms.insert_or_assign(time, transform).second ? 1 : 0;
}

void WorldMemory::Forget(const Node& node) {
  const auto track = tracks_.find(&node);
  if (track == tracks_.end()) return;
  size_ -= track->second.transforms.size();
  by_use_.erase(track->second.place);
  tracks_.erase(track);
}

}  // namespace host
