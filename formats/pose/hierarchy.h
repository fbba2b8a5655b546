#pragma once

#include <cstddef>
#include <vector>

#include "formats/htr/document.h"

// The segments of a document as trees, in an order that can be walked from front to back. Indices
// count from 0. Entries point into the document, which must outlive them. Nothing fails but for
// want of memory. May be called from any thread; the document is only read.

namespace orvane {

struct HierarchyEntry {
  const HtrSegment* segment = nullptr;
  std::size_t parent = 0;  // index of the parent's entry; its own index for a root
  std::size_t depth = 0;   // 0 for a root
};

// Every segment that hangs from a root, once: depth first, parents before their children, roots and
// children in the document's order. Takes any depth and any links.
[[nodiscard]] std::vector<HierarchyEntry> ListHierarchy(const HtrDocument& document);

// How many frames the longest of them holds; 0 without any.
[[nodiscard]] std::size_t MostFramesOf(const std::vector<HierarchyEntry>& hierarchy);

// The other segments, in the document's order: those whose parent is missing and those whose
// parents form a circle, with all that hangs from them. REQUIRES: `attached` is ListHierarchy of
// `document`.
[[nodiscard]] std::vector<const HtrSegment*> ListUnattached(
    const HtrDocument& document, const std::vector<HierarchyEntry>& attached);

}  // namespace orvane
