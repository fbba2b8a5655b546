#include "formats/pose/hierarchy.h"

#include <algorithm>
#include <cassert>
#include <unordered_set>

namespace orvane {
namespace {

// A segment may be listed more than once among its parent's children.
class Walk {
 public:
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
    if (!seen_.insert(entry.segment).second) return;
    const std::size_t index = entries_.size();
    entries_.push_back(entry);
    for (int i = entry.segment->GetNumChildren() - 1; i >= 0; --i) {
      waiting_.push_back({entry.segment->GetChild(i), index, entry.depth + 1});
    }
  }

  std::vector<HierarchyEntry> entries_;
  std::vector<HierarchyEntry> waiting_;
  std::unordered_set<const HtrSegment*> seen_;
};

}  // namespace

std::vector<HierarchyEntry> ListHierarchy(const HtrDocument& document) {
  Walk walk;
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
  std::unordered_set<const HtrSegment*> seen;
  for (const HierarchyEntry& entry : attached) seen.insert(entry.segment);
  std::vector<const HtrSegment*> unattached;
  for (const HtrSegment& segment : document.segments()) {
    if (seen.count(&segment) == 0) unattached.push_back(&segment);
  }
  return unattached;
}

}  // namespace orvane
