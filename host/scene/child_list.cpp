#include <algorithm>
#include <cassert>

#include "host/scene/node.h"

namespace host {

void ChildList::Add(Node& child) {
  child.place_in_parent_ = places_.size();
  places_.push_back(&child);
}

void ChildList::Remove(Node& child) {
  assert(child.place_in_parent_ < places_.size() && places_[child.place_in_parent_] == &child);
  places_[child.place_in_parent_] = nullptr;
  first_empty_ =
      empty_places_ == 0 ? child.place_in_parent_ : std::min(first_empty_, child.place_in_parent_);
  ++empty_places_;
}

const std::vector<Node*>& ChildList::All() const {
  if (empty_places_ > 0) CloseUp();
  return places_;
}

void ChildList::CloseUp() const {
  std::size_t end = first_empty_;
  for (std::size_t place = first_empty_; place < places_.size(); ++place) {
    if (places_[place] == nullptr) continue;
    places_[place]->place_in_parent_ = end;
    places_[end++] = places_[place];
  }
  places_.resize(end);
  empty_places_ = 0;
}

}  // namespace host
