#include "formats/htr/document_checker.h"

#include <array>
#include <cstddef>

namespace orvane {
namespace {

std::string FaultOfName(HtrDocument& document, const HtrSegment& segment) {
  const std::string name = segment.GetName();
  if (name.empty()) return "a segment without a name";
  if (name.find_first_of(" \t\n") != std::string::npos) return "a blank in the name " + name;
  if (document.FindSegment(name) != &segment) return "the name " + name + " finds another segment";
  return {};
}

std::string FaultOfLinks(const HtrDocument& document, const HtrSegment& segment) {
  const HtrSegment* parent = segment.GetParent();
  if (parent != nullptr && !document.IndexOf(*parent)) {
    return segment.GetName() + " has a strange parent";
  }
  for (int index = 0; index < segment.GetNumChildren(); ++index) {
    const HtrSegment* child = segment.GetChild(index);
    if (!document.IndexOf(*child)) return segment.GetName() + " has a strange child";
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
  std::size_t index = 0;
  for (const HtrSegment& segment : document.segments()) {
    if (document.IndexOf(segment) != index++) return segment.GetName() + " in another's place";
    const std::array faults = {FaultOfName(document, segment), FaultOfLinks(document, segment),
                               FaultOfFrames(segment)};
    for (const std::string& fault : faults) {
      if (!fault.empty()) return fault;
    }
  }
  const HtrSegment* root = document.FindRootSegment();
  if (root != nullptr && !root->GetIsRoot()) return "a root that is none";
  return {};
}

}  // namespace orvane
