#include "host/scene/node.h"

#include <cassert>
#include <utility>

// What a node is and holds. Its place in the tree is in node_tree.cpp, its transform in
// node_transform.cpp.

namespace host {
namespace {

constexpr ::WireColor kFirstWireColor = PackWireColor(153, 153, 153);

}  // namespace

Node::Node(const NodeEnvironment& environment, NodeHandle handle)
    : environment_(environment), handle_(handle), wire_color_(kFirstWireColor) {
  environment_.names.Add(name_);
}

Node::Node(const NodeEnvironment& environment, NodeHandle handle,
           std::unique_ptr<SceneObject> object, std::unique_ptr<TransformController> transform)
    : Node(environment, handle) {
  assert(object != nullptr && transform != nullptr);
  object_ = std::move(object);
  transform_ = std::move(transform);
  transform_->SetListener(this);
}

Node::~Node() = default;

bool Node::IsUsable(const char* operation) const {
  if (!deleted_) return true;
  environment_.misuse.Report(std::string(operation) + " called on deleted node \"" + name_ + "\"");
  return false;
}

bool Node::IsMovable(const char* operation) const {
  if (!IsUsable(operation)) return false;
  if (transform_ != nullptr) return true;
  environment_.misuse.Report(std::string(operation) + " called on the scene root");
  return false;
}

const char* Node::GetName() { return IsUsable("GetName") ? name_.c_str() : ""; }

void Node::SetName(const char* name) {
  if (!IsUsable("SetName")) return;
  std::string new_name = name == nullptr ? "" : name;
  environment_.names.Remove(name_);
  environment_.names.Add(new_name);
  name_ = std::move(new_name);
}

NodeHandle Node::GetHandle() { return IsUsable("GetHandle") ? handle_ : 0; }

void Node::SetWireColor(::WireColor color) {
  if (IsUsable("SetWireColor")) wire_color_ = color;
}

Control* Node::GetTMController() {
  return IsUsable("GetTMController") ? transform_.get() : nullptr;
}

Object* Node::GetObjectReference() {
  if (!IsUsable("GetObjectReference") || object_ == nullptr) return nullptr;
  return &object_->AsObject();
}

Object* Node::EvaluateWorldObject(TimeValue /*time*/) { return GetObjectReference(); }

void Node::SetUserPropertyFloat(const char* key, float value) {
  if (!IsUsable("SetUserPropertyFloat")) return;
  properties_.Set(environment_.property_keys.Of(key), value);
}

bool Node::GetUserPropertyFloat(const char* key, float& value) {
  if (!IsUsable("GetUserPropertyFloat")) return false;
  const std::optional<float> found = properties_.Find(key);
  value = found.value_or(value);
  return found.has_value();
}

void Node::SetBoneDisplay(int shown) {
  if (IsUsable("SetBoneDisplay")) bone_display_ = shown;
}

void Node::SetBoneEnabled(int enabled, TimeValue time) {
  if (!IsUsable("SetBoneEnabled")) return;
  bone_since_ = enabled != 0 ? std::optional<TimeValue>(time) : std::nullopt;
}

}  // namespace host
