#include "host/scene/node.h"

#include <utility>

#include "host/base/compose.h"
#include "host/scene/local_conversion.h"

namespace host {
namespace {

constexpr ::WireColor kFirstWireColor = PackWireColor(153, 153, 153);

// `vector`, of no place, under the transform `matrix`.
Point3 Direction(const Point3& vector, Matrix3 matrix) {
  matrix.SetRow(3, Point3());
  Matrix3 shift;
  shift.SetRow(3, vector);
  return (shift * matrix).GetRow(3);
}

}  // namespace

Node::Node(const NodeEnvironment& environment, NodeHandle handle)
    : environment_(environment), handle_(handle), wire_color_(kFirstWireColor) {
  environment_.names.Add(name_);
}

Node::Node(const NodeEnvironment& environment, NodeHandle handle,
           std::unique_ptr<SceneObject> object, std::unique_ptr<TransformController> transform)
    : Node(environment, handle) {
  object_ = std::move(object);
  transform_ = std::move(transform);
  transform_->SetListener(this);
}

Node::~Node() = default;

// --- Transforms ---

Matrix3 Node::LocalTransform(TimeValue time) const {
  return transform_ == nullptr ? Matrix3() : transform_->ValueAt(time);
}

Matrix3 Node::WorldTransform(TimeValue time) const {
  const auto is_known = [time](const Node& node) {
    return node.world_.has_value() && node.world_->time == time;
  };
  std::vector<const Node*> unknown;
  const Node* node = this;
  for (; node != nullptr && !is_known(*node); node = node->parent_) unknown.push_back(node);

  Matrix3 world = node == nullptr ? Matrix3() : node->world_->transform;
  for (auto next = unknown.rbegin(); next != unknown.rend(); ++next) {
    world = (*next)->LocalTransform(time) * world;
    (*next)->world_ = KnownWorld{time, world};
  }
  return world_->transform;
}

// Where a world transform is not known, none below it is: forgetting stops there.
void Node::ForgetWorld() {
  if (!world_.has_value()) return;
  std::vector<Node*> pending = {this};
  while (!pending.empty()) {
    Node* node = pending.back();
    pending.pop_back();
    if (!node->world_.has_value()) continue;
    node->world_.reset();
    pending.insert(pending.end(), node->Children().begin(), node->Children().end());
  }
}

Matrix3 Node::NodeTransform(TimeValue time) {
  return IsUsable("NodeTransform") ? WorldTransform(time) : Matrix3();
}

Matrix3 Node::ObjectTransform(TimeValue time) {
  if (!IsUsable("ObjectTransform")) return {};
  const Matrix3 world = WorldTransform(time);
  return object_offset_.has_value() ? *object_offset_ * world : world;
}

void Node::Move(TimeValue time, const Matrix3& axes, const Point3& offset, bool local_origin,
                bool affect_children, int /*pivot_mode*/, bool /*ignore_locks*/) {
  if (!IsMovable("Move")) return;
  if (!affect_children && children_.Size() > 0) {
    environment_.misuse.Report("Move without its children called on node \"" + name_ + "\"");
    return;
  }
  const Quat own_axes = transform_->Rotation().ValueAt(time);
  const Matrix3 to_parent = local_origin
                                ? ComposeMatrix(Point3(), own_axes, Point3(1.0F, 1.0F, 1.0F))
                                : axes * Inverse(parent_->WorldTransform(time));
  const Point3 change = Direction(offset, to_parent);
  transform_->Position().SetValue(time, &change, 1, SetMethod::kRelative);
}

void Node::Scale(TimeValue time, const Matrix3& axes, const Point3& factors, bool local_origin) {
  if (!IsMovable("Scale")) return;
  if (!local_origin || axes != Matrix3()) {
    environment_.misuse.Report("Scale along other axes than its own called on node \"" + name_ +
                               "\"");
    return;
  }
  transform_->Scale().SetValue(time, &factors, 1, SetMethod::kRelative);
}

// --- The tree ---

int Node::NumberOfChildren() {
  return IsUsable("NumberOfChildren") ? static_cast<int>(children_.Size()) : 0;
}

INode* Node::GetChildNode(int i) {
  if (!IsUsable("GetChildNode")) return nullptr;
  const std::vector<Node*>& children = Children();
  const auto index = static_cast<std::size_t>(i);
  return i >= 0 && index < children.size() ? children[index] : nullptr;
}

INode* Node::GetParentNode() { return IsUsable("GetParentNode") ? parent_ : nullptr; }

void Node::AttachChild(INode* child, bool keep_position) {
  if (!IsUsable("AttachChild")) return;
  auto* node = dynamic_cast<Node*>(child);
  if (!MayAttach(node)) {
    environment_.misuse.Report("A node that cannot be its child was attached to node \"" + name_ +
                               "\"");
    return;
  }
  if (keep_position) {
    ConvertLocal(*node->transform_, environment_.animation.Time(), [&](TimeValue time) {
      return node->WorldTransform(time) * Inverse(WorldTransform(time));
    });
  }
  AddChild(*node);
}

// A node without children is above no other, so that building a tree from its root down does not
// look for circles.
bool Node::MayAttach(const Node* child) const {
  if (child == nullptr || child == this || child->transform_ == nullptr) return false;
  if (&child->environment_.misuse != &environment_.misuse) return false;
  if (child->children_.Size() == 0) return true;
  const Node* above = parent_;
  while (above != nullptr && above != child) above = above->parent_;
  return above == nullptr;
}

void Node::AddChild(Node& child) {
  child.ForgetWorld();
  if (child.parent_ != nullptr) child.parent_->children_.Remove(child);
  child.parent_ = this;
  children_.Add(child);
}

void Node::Retire() {
  const std::vector<Node*> orphans = Children();
  for (Node* child : orphans) {
    ConvertLocal(*child->transform_, environment_.animation.Time(), [&](TimeValue time) {
      return child->LocalTransform(time) * LocalTransform(time);
    });
    parent_->AddChild(*child);
  }
  parent_->children_.Remove(*this);
  parent_ = nullptr;
  environment_.names.Remove(name_);
  object_.reset();
  transform_.reset();
  properties_.clear();
  deleted_ = true;
}

// --- Everything else ---

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
  if (IsUsable("SetUserPropertyFloat")) properties_[key] = value;
}

bool Node::GetUserPropertyFloat(const char* key, float& value) {
  if (!IsUsable("GetUserPropertyFloat")) return false;
  const auto found = properties_.find(key);
  if (found == properties_.end()) return false;
  value = found->second;
  return true;
}

void Node::SetBoneDisplay(int shown) {
  if (IsUsable("SetBoneDisplay")) bone_display_ = shown;
}

void Node::SetBoneEnabled(int enabled, TimeValue time) {
  if (!IsUsable("SetBoneEnabled")) return;
  bone_since_ = enabled != 0 ? std::optional<TimeValue>(time) : std::nullopt;
}

}  // namespace host
