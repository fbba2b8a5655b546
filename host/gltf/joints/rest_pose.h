#pragma once

#include <vector>

#include "host/gltf/joints/file_numbers.h"
#include "host/gltf/joints/joint_tree.h"

// How the joints of a file stand in the pose that its skins are bound in.

namespace host::gltf {

// Joints as their nodes have them, in the order of a tree. Of what is no joint the placements mean
// nothing.
struct StandingJoints {
  std::vector<Transform> worlds;
  std::vector<Placement> placements;
};

// Where each joint of `tree` rests in the world.
//
// Joints rest as the inverse bind matrices of their skins have it: programs save the nodes as they
// happen to stand, and the matrices as the skeleton was built. Where a joint below the same top has
// none, or one that is uneven, sheared or mirrored, all of them rest as they stand.
//
// The matrices do not tell in which space: some programs mean the world by it, and others what the
// skeleton hangs from. Taken is the one in which the topmost joint is scaled and turned more like
// it stands.
[[nodiscard]] std::vector<Placement> RestOf(const JsonField& document, const JointTree& tree,
                                            const StandingJoints& standing, Accessors& accessors);

}  // namespace host::gltf
