#pragma once

#include <vector>

#include "formats/htr/segment.h"
#include "plugin/import_htr/options.h"
#include "plugin/import_htr/scene_nodes.h"
#include "sdk/core/interface.h"

// Builds a new skeleton from the segments of a document: one bone per segment, in the file's base
// position, which is also kept on the bone as user properties. Keys are none of its business.
namespace orvane {

class SkeletonCreator {
 public:
  // Both must outlive this object.
  SkeletonCreator(Interface& interface, const ImportHTROptions& options)
      : interface_(interface), options_(options) {}

  // Creates the bones of `root` and of everything below it, in the order of the file, and returns
  // the bone of `root`. Lengths of the segments are in system units; they are not changed.
  // Returns null when a bone could not be created or refused its base position: that bone stays in
  // the scene, its ancestors are deleted, and what would follow is not created. The same when the
  // host throws, which is passed on.
  [[nodiscard]] INode* Create(const HtrSegment& root);

 private:
  struct OpenBone;

  [[nodiscard]] bool CreateBonesBelow(std::vector<OpenBone>& open);
  void DeleteAncestors(std::vector<OpenBone>& open);
  [[nodiscard]] INode* CreateSegmentNode(const HtrSegment& segment, INode* parent);
  [[nodiscard]] bool CreateEndEffector(const HtrSegment& segment, INode& node);
  double Thickness(const HtrSegment& segment) const;

  Interface& interface_;
  const ImportHTROptions& options_;
};

}  // namespace orvane
