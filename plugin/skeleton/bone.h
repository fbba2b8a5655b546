#pragma once

#include "sdk/core/node.h"

// What makes a node of the host a bone of a skeleton, and what an import leaves on it.
namespace orvane {

// The base position that a bone has in its file, kept on its node as user properties: in file axes
// and system units, angles in radians.
inline constexpr char kBaseTranslationX[] = "HTRBaseTransX";
inline constexpr char kBaseTranslationY[] = "HTRBaseTransY";
inline constexpr char kBaseTranslationZ[] = "HTRBaseTransZ";
inline constexpr char kBaseRotationX[] = "HTRBaseRotX";
inline constexpr char kBaseRotationY[] = "HTRBaseRotY";
inline constexpr char kBaseRotationZ[] = "HTRBaseRotZ";
inline constexpr char kBaseLength[] = "HTRBaseLength";

// Whether the object of `node` is a bone.
bool IsBone(INode& node);

// The first bone among the children of `node`; null when there is none.
INode* FirstBoneChild(INode& node);

}  // namespace orvane
