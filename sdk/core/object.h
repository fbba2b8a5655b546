#pragma once

#include "sdk/core/class_instance.h"
#include "sdk/geom/box3.h"

class IParamBlock;
class ParameterBlock;

// What a node shows: a bone, a helper, a primitive. Belongs to the scene once a node was made for
// it.
class Object : public ClassInstance {
 public:
  // The parameters of a primitive, or null for an object without such a block.
  virtual IParamBlock* GetParamBlock() = 0;

  // The index within GetParamBlock() of the object's parameter `i`, or -1.
  virtual int GetParamBlockIndex(int i) = 0;

  // The first block of an object with parameter blocks of the newer kind (bones), or null.
  virtual ParameterBlock* GetFirstParameterBlock() = 0;

 protected:
  ~Object() = default;
};

// The grouping helper: an invisible box.
class DummyObject : public Object {
 public:
  // Sets the extent of the box, in the node's own space and in system units.
  virtual void SetBox(const Box3& box) = 0;

 protected:
  ~DummyObject() = default;
};

// The parameters of a bone object in its first parameter block.
inline constexpr int kBoneWidthParameter = 0;
inline constexpr int kBoneHeightParameter = 1;
inline constexpr int kBoneLengthParameter = 3;

// The parameters of a sphere object. All but the radius are given by their number only.
inline constexpr int kSphereRadiusParameter = 0;
