#include "formats/pose/hierarchy.h"

#include <algorithm>
#include <cassert>
#include <unordered_set>

namespace orvane {
namespace {

// A segment may be listed more than once among its parent's children.
class Walk {
 public:
  explicit Walk(const HtrDocument& document)
      : document_(document), is_listed_(document.segments().size()) {
    entries_.reserve(is_listed_.size());
  }

  void AddTree(const HtrSegment& root) {
    Add({&root, entries_.size(), 0});
    while (!waiting_.empty()) {
      const HierarchyEntry next = waiting_.back();
      waiting_.pop_back();
      Add(next);
    }
  }

  std::vector<HierarchyEntry> TakeEntries() { return std::move(entries_); }

 private:
  void Add(const HierarchyEntry& entry) {
    if (!List(*entry.segment)) return;
    const std::size_t index = entries_.size();
    entries_.push_back(entry);
    for (int i = entry.segment->GetNumChildren() - 1; i >= 0; --i) {
      waiting_.push_back({entry.segment->GetChild(i), index, entry.depth + 1});
    }
  }

  // Returns whether it was not listed before.
  bool List(const HtrSegment& segment) {
    const auto index = document_.IndexOf(segment);
    if (!index) return strangers_.insert(&segment).second;
    if (is_listed_[*index]) return false;
    is_listed_[*index] = true;
    return true;
  }

  const HtrDocument& document_;
  std::vector<HierarchyEntry> entries_;
  std::vector<HierarchyEntry> waiting_;
  std::vector<bool> is_listed_;                      // of the document
  std::unordered_set<const HtrSegment*> strangers_;  // that are listed and not of the document
};

}  // namespace

std::vector<HierarchyEntry> ListHierarchy(const HtrDocument& document) {
  Walk walk(document);
  for (const HtrSegment& segment : document.segments()) {
    if (segment.GetIsRoot()) walk.AddTree(segment);
  }
  return walk.TakeEntries();
}

std::size_t MostFramesOf(const std::vector<HierarchyEntry>& hierarchy) {
  std::size_t most = 0;
  for (const HierarchyEntry& entry : hierarchy) {
    most = std::max(most, entry.segment->GetNumFrames());
  }
  return most;
}

std::vector<const HtrSegment*> ListUnattached(const HtrDocument& document,
                                              const std::vector<HierarchyEntry>& attached) {
  assert(attached.size() <= document.segments().size());
  std::vector<bool> is_attached(document.segments().size());
  for (const HierarchyEntry& entry : attached) {
    if (const auto index = document.IndexOf(*entry.segment)) is_attached[*index] = true;
  }
  std::vector<const HtrSegment*> unattached;
  std::size_t index = 0;
  for (const HtrSegment& segment : document.segments()) {
    if (!is_attached[index++]) unattached.push_back(&segment);
  }
  return unattached;
}

}  // namespace orvane
