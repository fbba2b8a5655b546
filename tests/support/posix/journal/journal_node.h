#pragma once

#include <string>

#include "sdk/core/node.h"

namespace test {

class JournalScene;

// A node of the host, as a plug-in sees it while a journal is kept.
class JournalNode final : public INode {
 public:
  // `own` is the host's. Both outlive this object.
  JournalNode(JournalScene& scene, INode& own) : scene_(scene), own_(own) {}
  JournalNode(const JournalNode&) = delete;
  JournalNode& operator=(const JournalNode&) = delete;

  INode& Own() { return own_; }

  const char* GetName() override { return own_.GetName(); }
  void SetName(const char* name) override;
  NodeHandle GetHandle() override { return own_.GetHandle(); }
  int NumberOfChildren() override { return own_.NumberOfChildren(); }
  INode* GetChildNode(int i) override;
  INode* GetParentNode() override;
  void AttachChild(INode* child, bool keep_position) override;
  void SetWireColor(WireColor color) override;
  Control* GetTMController() override;
  Object* GetObjectReference() override;
  Object* EvaluateWorldObject(TimeValue time) override;
  Matrix3 NodeTransform(TimeValue time) override;
  Matrix3 ObjectTransform(TimeValue time) override;
  void Move(TimeValue time, const Matrix3& axes, const Point3& offset, bool local_origin,
            bool affect_children, int pivot_mode, bool ignore_locks) override;
  void Scale(TimeValue time, const Matrix3& axes, const Point3& factors,
             bool local_origin) override;
  void SetUserPropertyFloat(const char* key, float value) override;
  bool GetUserPropertyFloat(const char* key, float& value) override;
  void SetBoneDisplay(int shown) override;
  void SetBoneEnabled(int enabled, TimeValue time) override;

 private:
  JournalScene& scene_;
  INode& own_;
};

// What a node is called in a journal.
std::string NodeName(INode& node);

}  // namespace test
