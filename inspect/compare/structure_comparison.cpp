#include "inspect/compare/structure_comparison.h"

#include <algorithm>
#include <unordered_map>
#include <utility>

namespace orvane {
namespace {

constexpr char kGlobal[] = "GLOBAL";

// The segments of one file, and where each is in its hierarchy.
struct Side {
  HtrDocument& document;
  std::vector<HierarchyEntry> hierarchy{};
  std::unordered_map<const HtrSegment*, std::size_t> entries{};
  std::size_t attached = 0;  // entries before this hang from a root
  FrameSpan frames{};        // those that some segment holds

  bool IsAttached(const HtrSegment* segment) const { return entries.at(segment) < attached; }
};

Side Survey(HtrDocument& document) {
  Side side{document};
  side.hierarchy = ListHierarchy(document);
  side.attached = side.hierarchy.size();
  for (const HtrSegment* segment : ListUnattached(document, side.hierarchy)) {
    side.hierarchy.push_back({segment, side.hierarchy.size(), 0});
  }
  for (std::size_t entry = 0; entry < side.hierarchy.size(); ++entry) {
    const HtrSegment* segment = side.hierarchy[entry].segment;
    side.entries.emplace(segment, entry);
  }
  side.frames = FramesHeld(document);
  return side;
}

std::string ParentName(const HtrSegment& segment) {
  if (segment.GetIsRoot()) return kGlobal;
  return segment.GetParent() == nullptr ? std::string() : segment.GetParent()->GetName();
}

std::int64_t LastFrame(const HtrSegment& segment, const Side& side) {
  return side.frames.first + static_cast<std::int64_t>(segment.GetNumFrames()) - 1;
}

class StructureComparer {
 public:
  StructureComparer(HtrDocument& a, HtrDocument& b) : a_(Survey(a)), b_(Survey(b)) {}

  StructureComparison Run() {
    CompareFrames();
    for (const HtrSegment& segment : a_.document.segments()) CompareSegment(segment);
    FindSegmentsOfB();
    result_.differences.frame_rate =
        a_.document.GetDataFrameRate() != b_.document.GetDataFrameRate();
    result_.hierarchy_a = std::move(a_.hierarchy);
    result_.hierarchy_b = std::move(b_.hierarchy);
    return std::move(result_);
  }

 private:
  void CompareFrames() {
    for (const FramesOfOne& only : FramesOfOneAlone(a_.frames, b_.frames)) {
      result_.differences.frames.push_back({only.file, "", only.frames});
    }
    result_.at_rest = a_.frames.IsEmpty() && b_.frames.IsEmpty();
    result_.common_frames = CommonFrames(a_.frames, b_.frames);
  }

  void CompareSegment(const HtrSegment& in_a) {
    const std::string name = in_a.GetName();
    const HtrSegment* in_b = b_.document.FindSegment(name);
    if (in_b == nullptr) return result_.differences.segments.push_back({WhichFile::kA, name});
    CompareFramesOf(in_a, *in_b);
    const std::string parent_a = ParentName(in_a);
    const std::string parent_b = ParentName(*in_b);
    if (parent_a != parent_b) {
      return result_.differences.parents.push_back({name, parent_a, parent_b});
    }
    // Where only one of them hangs from a root, some parent's parent differs and is told.
    if (a_.IsAttached(&in_a) != b_.IsAttached(in_b)) return;
    result_.pairs.push_back({a_.entries.at(&in_a), b_.entries.at(in_b)});
  }

  // A segment may hold fewer frames than others of its file.
  void CompareFramesOf(const HtrSegment& in_a, const HtrSegment& in_b) {
    if (!result_.common_frames) return;
    const FrameSpan common = *result_.common_frames;
    const auto last_within = [&common](std::int64_t last) {
      return std::clamp(last, common.first - 1, common.last);
    };
    const std::int64_t last_a = last_within(LastFrame(in_a, a_));
    const std::int64_t last_b = last_within(LastFrame(in_b, b_));
    if (last_a == last_b) return;
    result_.differences.frames.push_back(
        {last_a > last_b ? WhichFile::kA : WhichFile::kB,
         in_a.GetName(),
         {std::min(last_a, last_b) + 1, std::max(last_a, last_b)}});
  }

  void FindSegmentsOfB() {
    for (const HtrSegment& segment : b_.document.segments()) {
      const std::string name = segment.GetName();
      if (a_.document.FindSegment(name) != nullptr) continue;
      result_.differences.segments.push_back({WhichFile::kB, name});
    }
  }

  Side a_;
  Side b_;
  StructureComparison result_;
};

}  // namespace

StructureComparison CompareStructure(HtrDocument& a, HtrDocument& b) {
  return StructureComparer(a, b).Run();
}

}  // namespace orvane
