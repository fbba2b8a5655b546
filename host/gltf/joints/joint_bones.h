#pragma once

#include <string>
#include <vector>

#include "host/gltf/joints/frame_grid.h"
#include "host/gltf/joints/joint_tree.h"
#include "host/scene/scene.h"

// Joints as bones of a scene.

namespace host::gltf {

// The bones that are made of the joints of a tree. A bone's long axis is its X axis in the host;
// joints point along any, most of those of one file along the same. That is the one which most of
// the way to the joints below lies along, and it becomes X.
class JointBones {
 public:
  // Makes them in `scene`, which is new, as they rest one frame before those of `grid`. `rest` are
  // the places of the joints of `tree`, which have the nodes of the file `nodes`.
  JointBones(const JointTree& tree, const std::vector<FileNode>& nodes,
             const std::vector<Placement>& rest, const FrameGrid& grid, Scene& scene);

  // Keys all of them in frame number `frame` of the grid, counted from 0: where they are then.
  void Key(std::size_t frame, const std::vector<Placement>& placements);

  // Names that bones could not take over from the nodes of the file, as they are there.
  [[nodiscard]] const std::vector<std::string>& Renamed() const { return renamed_; }

 private:
  Node& MakeBone(std::size_t joint, const std::string& name, float length);
  void KeyAt(TimeValue tick, const std::vector<Placement>& placements);
  [[nodiscard]] Transform Within(std::size_t joint, const std::vector<Placement>& placements) const;
  [[nodiscard]] std::string NameFor(std::size_t joint, const std::vector<FileNode>& nodes);

  const JointTree& tree_;
  Scene& scene_;
  TimeValue first_tick_;
  TimeValue frame_ticks_;
  Transform turn_;            // to the axes of a bone
  std::vector<Node*> bones_;  // by the index in the tree; null for what is no joint
  std::vector<std::string> renamed_;
};

}  // namespace host::gltf
