#include <cassert>
#include <vector>

#include "host/scene/local_conversion.h"
#include "host/scene/node.h"

// A node's parent and children, and its end.

namespace host {

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
  assert(!IsRoot() && !IsDeleted());
  ForgetWorld();
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
  properties_ = {};
  deleted_ = true;
}

}  // namespace host
