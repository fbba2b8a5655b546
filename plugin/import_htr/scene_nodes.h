#pragma once

#include <string>

#include "sdk/core/interface.h"

// Making the kinds of node that skeletons consist of. Nodes belong to the scene.
namespace orvane {

// The size of a bone, in system units.
struct BoneDimensions {
  double length = 0.0;
  double thickness = 0.0;  // both sides of its cross-section
};

// Creates a bone of `size` under the scene root, named `name`, in the host's colour for new
// objects. Returns null when the host cannot create it.
[[nodiscard]] INode* CreateBoneNode(Interface& interface, const std::string& name,
                                    const BoneDimensions& size);

// Creates a grouping helper under the scene root, a box from -half_extent to half_extent (system
// units) on every axis, in the host's colour for new objects. Returns null when the host cannot
// create it.
[[nodiscard]] INode* CreateGroupNode(Interface& interface, const std::string& name,
                                     float half_extent);

}  // namespace orvane
