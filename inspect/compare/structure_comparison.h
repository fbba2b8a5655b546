#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "formats/htr/document.h"
#include "formats/pose/hierarchy.h"
#include "inspect/compare/sides.h"

// What two motion files hold, as opposed to where it moves: the segments by their names, what each
// hangs from, and the frames by their numbers. The files are called A and B. Indices count from 0.
// Nothing fails but for want of memory. May be called from any thread, but for one document by one
// thread at a time: it looks segments up.

namespace orvane {

struct OnlySegment {
  WhichFile file = WhichFile::kA;
  std::string name;
};

// What a segment of both files hangs from: the parent's name, "GLOBAL" for a root, or an empty text
// when the file names none that exists.
struct DifferentParent {
  std::string name;
  std::string in_a;
  std::string in_b;
};

struct OnlyFrames {
  WhichFile file = WhichFile::kA;
  std::string segment;  // empty: all of them
  FrameSpan frames;
};

struct StructureDifferences {
  std::vector<OnlySegment> segments;     // those of A first, each file's in its own order
  std::vector<DifferentParent> parents;  // in A's order
  std::vector<OnlyFrames> frames;        // of all segments first, then by segment in A's order
  bool frame_rate = false;

  [[nodiscard]] bool Any() const {
    return !segments.empty() || !parents.empty() || !frames.empty() || frame_rate;
  }
};

// One segment that both files hold, with the same parent. Indices into the hierarchies.
struct SegmentPair {
  std::size_t in_a = 0;
  std::size_t in_b = 0;
};

struct StructureComparison {
  // All segments of each file, parents before their children; those that hang from no root are
  // roots of their own, in the space of the parent that they have not got.
  std::vector<HierarchyEntry> hierarchy_a;
  std::vector<HierarchyEntry> hierarchy_b;

  // What can be compared, in A's order.
  std::vector<SegmentPair> pairs;

  // Frames that some segment of each file holds; nothing when there are none.
  std::optional<FrameSpan> common_frames;

  // Neither file holds a frame.
  bool at_rest = false;

  StructureDifferences differences;
};

// Works in linear time. The result points into the documents, which are not changed and must
// outlive it.
[[nodiscard]] StructureComparison CompareStructure(HtrDocument& a, HtrDocument& b);

}  // namespace orvane
