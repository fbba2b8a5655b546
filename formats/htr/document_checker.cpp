#include "formats/htr/document_checker.h"

#include <string_view>
#include <unordered_set>
#include <vector>

namespace orvane {
namespace {

using Segments = std::unordered_set<const HtrSegment*>;

std::string FaultOfName(HtrDocument& document, const HtrSegment& segment) {
  const std::string name = segment.GetName();
  if (name.empty()) return "a segment without a name";
  if (name.find_first_of(" \t\n") != std::string::npos) return "a blank in the name " + name;
  if (document.FindSegment(name) != &segment) return "the name " + name + " finds another segment";
  return {};
}

std::string FaultOfLinks(const HtrSegment& segment, const Segments& all) {
  const HtrSegment* parent = segment.GetParent();
  if (parent != nullptr && !all.contains(parent))
    return segment.GetName() + " has a strange parent";
  for (int index = 0; index < segment.GetNumChildren(); ++index) {
    const HtrSegment* child = segment.GetChild(index);
    if (!all.contains(child)) return segment.GetName() + " has a strange child";
    if (child->GetParent() != &segment) return child->GetName() + " has two parents";
  }
  if (segment.GetChild(-1) != nullptr || segment.GetChild(segment.GetNumChildren()) != nullptr) {
    return segment.GetName() + " has children beyond its count";
  }
  return {};
}

std::string FaultOfFrames(const HtrSegment& segment) {
  const std::size_t count = segment.GetNumFrames();
  if (segment.GetFrameScale(count) != 1.0) return segment.GetName() + " has a scale past its end";
  if (segment.GetFramePosition(count).x() != 0.0) return segment.GetName() + " moves past its end";
  return {};
}

}  // namespace

std::string FindFault(HtrDocument& document) {
  Segments all;
  for (const HtrSegment& segment : document.segments()) all.insert(&segment);
  if (document.GetNumSegments() != static_cast<int>(all.size())) return "a wrong segment count";
  if (document.GetSegmentNames().size() != all.size()) return "a wrong count of names";
  for (const HtrSegment& segment : document.segments()) {
    for (const std::string& fault :
         {FaultOfName(document, segment), FaultOfLinks(segment, all), FaultOfFrames(segment)}) {
      if (!fault.empty()) return fault;
    }
  }
  const HtrSegment* root = document.FindRootSegment();
  if (root != nullptr && !root->GetIsRoot()) return "a root that is none";
  return {};
}

}  // namespace orvane
