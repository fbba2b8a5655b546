#include "tests/support/posix/journal/journal_node.h"

#include "tests/support/posix/journal/journal_scene.h"

namespace test {
namespace {

std::string AxesText(const Matrix3& axes) {
  return axes == Matrix3() ? "the world's axes" : "other axes";
}

}  // namespace

void JournalNode::SetName(const char* name) {
  scene_.journal().Note(NodeName(own_), " name ", name);
  own_.SetName(name);
}

INode* JournalNode::GetChildNode(int i) { return scene_.Shown(own_.GetChildNode(i)); }

INode* JournalNode::GetParentNode() { return scene_.Shown(own_.GetParentNode()); }

void JournalNode::AttachChild(INode* child, bool keep_position) {
  scene_.journal().Note(NodeName(own_), " attach ", NodeName(*OwnOf(child)),
                        ", keeping its position? ", keep_position);
  own_.AttachChild(OwnOf(child), keep_position);
}

void JournalNode::SetWireColor(WireColor color) {
  scene_.journal().Note(NodeName(own_), " wire color ", WireColorText(color));
  own_.SetWireColor(color);
}

Control* JournalNode::GetTMController() {
  return scene_.Shown(own_.GetTMController(), own_, "transform");
}

Object* JournalNode::GetObjectReference() { return scene_.Shown(own_.GetObjectReference(), own_); }

Object* JournalNode::EvaluateWorldObject(TimeValue time) {
  scene_.journal().Note(NodeName(own_), " world object at ", time);
  return scene_.Shown(own_.EvaluateWorldObject(time), own_);
}

Matrix3 JournalNode::NodeTransform(TimeValue time) {
  scene_.journal().Note(NodeName(own_), " transform at ", time);
  return own_.NodeTransform(time);
}

Matrix3 JournalNode::ObjectTransform(TimeValue time) {
  scene_.journal().Note(NodeName(own_), " object transform at ", time);
  return own_.ObjectTransform(time);
}

void JournalNode::Move(TimeValue time, const Matrix3& axes, const Point3& offset, bool local_origin,
                       bool affect_children, int pivot_mode, bool ignore_locks) {
  scene_.journal().Note(NodeName(own_), " move by ", offset, " at ", time, " along ",
                        AxesText(axes), ", local origin? ", local_origin, ", children? ",
                        affect_children, ", pivot mode ", pivot_mode, ", ignoring locks? ",
                        ignore_locks);
  own_.Move(time, axes, offset, local_origin, affect_children, pivot_mode, ignore_locks);
}

void JournalNode::Scale(TimeValue time, const Matrix3& axes, const Point3& factors,
                        bool local_origin) {
  scene_.journal().Note(NodeName(own_), " scale by ", factors, " at ", time, " along ",
                        AxesText(axes), ", local origin? ", local_origin);
  own_.Scale(time, axes, factors, local_origin);
}

void JournalNode::SetUserPropertyFloat(const char* key, float value) {
  scene_.journal().Note(NodeName(own_), " ", key, " = ", value);
  own_.SetUserPropertyFloat(key, value);
}

bool JournalNode::GetUserPropertyFloat(const char* key, float& value) {
  const bool has = own_.GetUserPropertyFloat(key, value);
  scene_.journal().Note(NodeName(own_), " ", key, "? ", has ? Shown(value) : "none");
  return has;
}

void JournalNode::SetBoneDisplay(int shown) {
  scene_.journal().Note(NodeName(own_), " bone display ", shown);
  own_.SetBoneDisplay(shown);
}

void JournalNode::SetBoneEnabled(int enabled, TimeValue time) {
  scene_.journal().Note(NodeName(own_), " bone ", enabled, " from ", time);
  own_.SetBoneEnabled(enabled, time);
}

std::string NodeName(INode& node) {
  return node.GetParentNode() == nullptr ? "scene root" : node.GetName();
}

}  // namespace test
