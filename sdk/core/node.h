#pragma once

#include "sdk/core/control.h"
#include "sdk/core/object.h"
#include "sdk/core/types.h"
#include "sdk/geom/matrix3.h"
#include "sdk/geom/point3.h"

// How Move treats the node's pivot: as an ordinary move of the node.
inline constexpr int kNoPivotMode = 0;

// A node of the scene: a name, an object, a transform, and children. Nodes belong to the scene; a
// pointer stays valid until the node is deleted. Lengths are in system units, times in ticks, child
// indices start at 0.
class INode {
 public:
  // The name; valid until the next SetName. Names need not be unique.
  virtual const char* GetName() = 0;
  virtual void SetName(const char* name) = 0;

  virtual NodeHandle GetHandle() = 0;

  virtual int NumberOfChildren() = 0;

  // Child `i`, or null when there is none.
  virtual INode* GetChildNode(int i) = 0;

  // The parent; the scene root for a node that stands directly under it; null for the scene root.
  virtual INode* GetParentNode() = 0;

  // Makes `child` the last child of this node. With `keep_position` its world transform stays,
  // without it its local values stay.
  virtual void AttachChild(INode* child, bool keep_position) = 0;

  virtual void SetWireColor(WireColor color) = 0;

  // The transform controller; null for the scene root.
  virtual Control* GetTMController() = 0;

  // The node's object; null for the scene root.
  virtual Object* GetObjectReference() = 0;

  // The object as the node shows it in the world at `time`.
  virtual Object* EvaluateWorldObject(TimeValue time) = 0;

  // The world transform of the node at `time`, the identity for the scene root.
  virtual Matrix3 NodeTransform(TimeValue time) = 0;

  // The world transform of the node's object at `time`: bit for bit the node's own when the object
  // is not offset from it.
  virtual Matrix3 ObjectTransform(TimeValue time) = 0;

  // Moves the node at `time` by `offset`, measured along `axes`, or along the node's own axes when
  // `local_origin` is set. `ignore_locks` moves a node whose transform is locked, too.
  virtual void Move(TimeValue time, const Matrix3& axes, const Point3& offset, bool local_origin,
                    bool affect_children, int pivot_mode, bool ignore_locks) = 0;

  // Multiplies the node's scale at `time` by `factors` along `axes`, about its own origin when
  // `local_origin` is set.
  virtual void Scale(TimeValue time, const Matrix3& axes, const Point3& factors,
                     bool local_origin) = 0;

  // A number kept on the node under `key`. The getter returns false, leaving `value` alone, when
  // there is none.
  virtual void SetUserPropertyFloat(const char* key, float value) = 0;
  virtual bool GetUserPropertyFloat(const char* key, float& value) = 0;

  // Whether the node is drawn with bone links of its own (0: it is not).
  virtual void SetBoneDisplay(int shown) = 0;

  // Makes the node a bone (1) from `time` on, or an ordinary node (0).
  virtual void SetBoneEnabled(int enabled, TimeValue time) = 0;

 protected:
  ~INode() = default;
};
