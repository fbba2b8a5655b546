#pragma once

#include "formats/math/rotation_matrix3.h"
#include "formats/math/vector.h"
#include "plugin/skeleton/axis_conversion.h"
#include "sdk/core/node.h"

// How a bone of the scene stands at one time, in the axes of the file. Lengths are in system units.
namespace orvane {

struct BonePose {
  Vector3 translation;
  RotationMatrix3 rotation;
  double scale = 1.0;  // along the bone, the host's local X
};

// Where a bone and its parent in the scene stand in the world at one time; the parent of the scene
// root stands nowhere else than the world.
struct BoneTransforms {
  TimeValue time = 0;  // ticks
  Matrix3 node;
  Matrix3 parent;
};

// Reads the poses of one bone.
class BonePoseReader {
 public:
  // `node` must outlive this object. The poses of a bone that is not the root of the export are
  // relative to its parent in the scene; those of a root are in the world when `root_in_world` is
  // set, and relative to its parent otherwise.
  BonePoseReader(INode& node, bool is_root, bool root_in_world)
      : node_(node),
        parent_(node.GetParentNode()),
        axes_(is_root),
        relative_(!is_root || !root_in_world) {}

  // Asks the host for both transforms at `time`, also where the parent's does not enter the pose.
  BoneTransforms Read(TimeValue time) const;

  BonePose Pose(const BoneTransforms& transforms) const;

  // Whether the object of the node, or that of its parent, does not stand where its node does.
  bool HasObjectOffset(const BoneTransforms& transforms) const;

 private:
  INode& node_;
  INode* parent_;  // null only for the scene root
  AxisConversion axes_;
  bool relative_;
};

// The scale of the parent in the world along its local X.
double ParentScale(const BoneTransforms& transforms);

}  // namespace orvane
