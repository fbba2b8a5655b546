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
  std::vector<const Node*> unknown;
  const Matrix3* kept = nullptr;
  for (const Node* node = this; node != nullptr; node = node->parent_) {
    kept = node->KeptWorld(time);
    if (kept != nullptr) break;
    unknown.push_back(node);
  }
  Matrix3 world = kept == nullptr ? Matrix3() : *kept;
  for (auto next = unknown.rbegin(); next != unknown.rend(); ++next) {
    world = (*next)->LocalTransform(time) * world;
    (*next)->KeepWorld(time, world);
  }
  return world;
}

const Matrix3* Node::KeptWorld(TimeValue time) const {
  if (!world_.has_value()) return nullptr;
  return world_->time == time ? &world_->transform : environment_.worlds.Find(*this, time);
}

void Node::KeepWorld(TimeValue time, const Matrix3& transform) const {
  if (world_.has_value()) environment_.worlds.Keep(*this, world_->time, world_->transform);
  world_ = KnownWorld{time, transform};
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
    environment_.worlds.Forget(*node);
    pending.insert(pending.end(), node->Children().begin(), node->Children().end());
  }
}

Matrix3 Node::NodeTransform(TimeValue time) {
  return IsUsable("NodeTransform") ? WorldTransform(time) : Matrix3();
}

Matrix3 Node::ObjectTransform(TimeValue time) {
  if (!IsUsable("ObjectTransform")) return {};
  const Matrix3 world = WorldTransform(time);
  return object_offset_.has_value() && !IsRoot() ? *object_offset_ * world : world;
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
