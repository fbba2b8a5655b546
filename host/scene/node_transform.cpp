#include <vector>

#include "host/base/compose.h"
#include "host/scene/node.h"

// A node's transforms, and its move and scale.

namespace host {
namespace {

// `vector`, of no place, under the transform `matrix`.
Point3 Direction(const Point3& vector, Matrix3 matrix) {
  matrix.SetRow(3, Point3());
  Matrix3 shift;
  shift.SetRow(3, vector);
  return (shift * matrix).GetRow(3);
}

}  // namespace

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

}  // namespace host
