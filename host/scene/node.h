#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/animation/animation_state.h"
#include "host/animation/transform_controller.h"
#include "host/base/misuse_log.h"
#include "host/scene/measured.h"
#include "host/scene/name_table.h"
#include "host/scene/scene_object.h"
#include "host/scene/user_properties.h"
#include "host/scene/world_memory.h"
#include "platform/export.h"
#include "sdk/core/node.h"

// A node: its place in the tree, its contents, and its transform in the world. Selection, handles
// and the making of nodes are the scene's (scene.h).

namespace host {

// What the nodes of one scene share. It outlives them, and so does all of it.
struct NodeEnvironment {
  const AnimationState& animation;
  NameTable& names;
  PropertyKeys& property_keys;
  WorldMemory& worlds;
  MisuseLog& misuse;
};

class Node;

// The children of a node in their order. A child that leaves only empties its place, which it
// knows; the list is closed up when it is next read, so that moving any number of children to
// another node takes time in proportion to their number.
class SKELDER_API ChildList {
 public:
  // Appends `child`.
  // REQUIRES: it is in no list.
  void Add(Node& child);

  // Takes `child` out of this list.
  // REQUIRES: it is in it.
  void Remove(Node& child);

  // The children; valid until the list changes.
  const std::vector<Node*>& All() const;

  std::size_t Size() const { return places_.size() - empty_places_; }

 private:
  // Closes up the list from the first empty place on.
  void CloseUp() const;

  mutable std::vector<Node*> places_;
  mutable std::size_t first_empty_ = 0;
  mutable std::size_t empty_places_ = 0;
};

// A node of a scene, which owns it: see sdk/core/node.h for the plug-in's side. The node owns its
// object and its transform controller. A deleted node keeps its memory, without contents, until the
// scene ends: whoever still calls it through the SDK gets nothing done and is noted as misuse.
class SKELDER_API Node final : public INode, private ChangeListener {
 public:
  // A scene root: no object, no transform controller.
  Node(const NodeEnvironment& environment, NodeHandle handle);

  // A node without a parent.
  // REQUIRES: `object` and `transform` are not null.
  Node(const NodeEnvironment& environment, NodeHandle handle, std::unique_ptr<SceneObject> object,
       std::unique_ptr<TransformController> transform);

  Node(const Node&) = delete;
  Node& operator=(const Node&) = delete;
  ~Node();

  // --- The host's side ---

  NodeHandle Handle() const { return handle_; }
  const std::string& Name() const { return name_; }
  bool IsRoot() const { return transform_ == nullptr && !deleted_; }
  bool IsDeleted() const { return deleted_; }

  Node* Parent() const { return parent_; }

  // The children in their order; valid until one comes or goes.
  const std::vector<Node*>& Children() const { return children_.All(); }

  // Null for a scene root.
  SceneObject* ShownObject() const { return object_.get(); }
  TransformController* Transform() const { return transform_.get(); }

  // The object in the node's space, unless it is the node's space itself.
  const std::optional<Matrix3>& ObjectOffset() const { return object_offset_; }
  void SetObjectOffset(const std::optional<Matrix3>& offset) { object_offset_ = offset; }

  // What is known of the measurement behind the position; nothing at first.
  const std::optional<Measured>& Measurement() const { return measurement_; }
  void SetMeasurement(std::optional<Measured> measurement) {
    measurement_ = std::move(measurement);
  }

  const UserProperties& Properties() const { return properties_; }

  ::WireColor WireColor() const { return wire_color_; }

  // As SetBoneDisplay was last told; 1 at first.
  int BoneDisplay() const { return bone_display_; }

  // Whether the node is a bone, and from which time on; not at first.
  bool IsBone() const { return bone_since_.has_value(); }
  const std::optional<TimeValue>& BoneSince() const { return bone_since_; }

  // The transform within the parent, and in the world. The world transforms of a path through the
  // tree are kept until something on it changes.
  Matrix3 LocalTransform(TimeValue time) const;
  Matrix3 WorldTransform(TimeValue time) const;

  // Ends the life of this node: its children go to its parent with their world transforms kept, its
  // name becomes free, its contents are destroyed.
  // REQUIRES: it is neither a root nor deleted.
  void Retire();

  // --- The plug-in's side ---

  const char* GetName() override;
  void SetName(const char* name) override;
  NodeHandle GetHandle() override;
  int NumberOfChildren() override;
  INode* GetChildNode(int i) override;
  INode* GetParentNode() override;

  // A node that is not of this scene, is a root, or is this node or one above it, stays where it
  // is and is noted as misuse. A keyed controller of a child that keeps its position is converted
  // at every one of its keys, one without keys at the current time.
  void AttachChild(INode* child, bool keep_position) override;

  void SetWireColor(::WireColor color) override;
  Control* GetTMController() override;
  Object* GetObjectReference() override;
  Object* EvaluateWorldObject(TimeValue time) override;
  Matrix3 NodeTransform(TimeValue time) override;
  Matrix3 ObjectTransform(TimeValue time) override;

  // Children follow in any case: not to affect them is supported for a node without any.
  void Move(TimeValue time, const Matrix3& axes, const Point3& offset, bool local_origin,
            bool affect_children, int pivot_mode, bool ignore_locks) override;

  // Supported about the node's own origin and along its own axes (`axes` the identity).
  void Scale(TimeValue time, const Matrix3& axes, const Point3& factors,
             bool local_origin) override;

  void SetUserPropertyFloat(const char* key, float value) override;
  bool GetUserPropertyFloat(const char* key, float& value) override;
  void SetBoneDisplay(int shown) override;
  void SetBoneEnabled(int enabled, TimeValue time) override;

 private:
  friend class ChildList;  // knows each child's place

  void ControllerChanged() override { ForgetWorld(); }

  // The world transform at `time` if it is kept, null otherwise. Valid until the next is kept.
  const Matrix3* KeptWorld(TimeValue time) const;
  void KeepWorld(TimeValue time, const Matrix3& transform) const;

  // Forgets the world transforms of this node and of all nodes below.
  void ForgetWorld();

  // Whether `operation` may go on; notes a misuse when the node was deleted.
  bool IsUsable(const char* operation) const;

  // The same, and whether the node has a transform.
  bool IsMovable(const char* operation) const;

  bool MayAttach(const Node* child) const;
  void AddChild(Node& child);

  const NodeEnvironment& environment_;
  NodeHandle handle_;
  std::string name_;
  bool deleted_ = false;
  Node* parent_ = nullptr;
  std::size_t place_in_parent_ = 0;
  ChildList children_;
  std::unique_ptr<SceneObject> object_;
  std::unique_ptr<TransformController> transform_;
  std::optional<Matrix3> object_offset_;
  std::optional<Measured> measurement_;
  UserProperties properties_;
  ::WireColor wire_color_;
  int bone_display_ = 1;
  std::optional<TimeValue> bone_since_;

  // The world transform at the time that was asked for last; those before it are in the memory of
  // the scene. While it is known, so are those of all nodes above, though perhaps for other times.
  struct KnownWorld {
    TimeValue time;
    Matrix3 transform;
  };
  mutable std::optional<KnownWorld> world_;
};

}  // namespace host
