#pragma once

#include "sdk/core/interface.h"

namespace test {

// Passes every call on to another interface; tests override what they want to see or refuse.
class ForwardingInterface : public ::Interface {
 public:
  explicit ForwardingInterface(::Interface& target) : target_(target) {}
  ForwardingInterface(const ForwardingInterface&) = delete;
  ForwardingInterface& operator=(const ForwardingInterface&) = delete;

  bool ProgressStart(const char* title, bool show_bar, ProgressCallback callback,
                     void* argument) override {
    return target_.ProgressStart(title, show_bar, callback, argument);
  }
  void ProgressUpdate(int percent, bool show_percent, const char* title) override {
    target_.ProgressUpdate(percent, show_percent, title);
  }
  void ProgressEnd() override { target_.ProgressEnd(); }
  bool GetCancel() override { return target_.GetCancel(); }
  int GetSelNodeCount() override { return target_.GetSelNodeCount(); }
  INode* GetSelNode(int i) override { return target_.GetSelNode(i); }
  ClassInstance* CreateInstance(SuperClassId super_class, ClassId class_id) override {
    return target_.CreateInstance(super_class, class_id);
  }
  INode* CreateObjectNode(Object* object) override { return target_.CreateObjectNode(object); }
  void DeleteNode(INode* node, bool redraw) override { target_.DeleteNode(node, redraw); }
  void MakeNameUnique(CStr& name) override { target_.MakeNameUnique(name); }
  INode* GetRootNode() override { return target_.GetRootNode(); }
  INode* GetINodeByHandle(NodeHandle handle) override { return target_.GetINodeByHandle(handle); }
  void RedrawViews(TimeValue time) override { target_.RedrawViews(time); }
  TimeValue GetTime() override { return target_.GetTime(); }
  void SetAnimRange(const Interval& range) override { target_.SetAnimRange(range); }
  Interval GetAnimRange() override { return target_.GetAnimRange(); }
  bool IsPlaybackRunning() override { return target_.IsPlaybackRunning(); }
  void StopPlayback() override { target_.StopPlayback(); }
  HWND GetSkelderHWnd() override { return target_.GetSkelderHWnd(); }
  void ProcessPendingMessages() override { target_.ProcessPendingMessages(); }
  HWND AddRollupPage(HINSTANCE module, int dialog_id, platform::DialogProcedure procedure,
                     const char* title, std::intptr_t parameter, unsigned flags,
                     int category) override {
    return target_.AddRollupPage(module, dialog_id, procedure, title, parameter, flags, category);
  }
  void DeleteRollupPage(HWND page) override { target_.DeleteRollupPage(page); }
  void SetPickMode(PickModeCallback* callback) override { target_.SetPickMode(callback); }
  void ClearPickMode() override { target_.ClearPickMode(); }
  INode* PickNode(HWND window, const ViewportPoint& point, PickNodeCallback* filter) override {
    return target_.PickNode(window, point, filter);
  }
  void RegisterExitSkelderCallback(ExitSkelderCallback* callback) override {
    target_.RegisterExitSkelderCallback(callback);
  }
  void UnRegisterExitSkelderCallback(ExitSkelderCallback* callback) override {
    target_.UnRegisterExitSkelderCallback(callback);
  }

 private:
  ::Interface& target_;
};

// Cannot create the n-th object or controller, or the node for the n-th object.
class RefusingInterface final : public ForwardingInterface {
 public:
  using ForwardingInterface::ForwardingInterface;

  void RefuseInstance(int n) { instances_left_ = n; }  // counted from 1
  void RefuseNode(int n) { nodes_left_ = n; }

  ClassInstance* CreateInstance(SuperClassId super_class, ClassId class_id) override {
    if (--instances_left_ == 0) return nullptr;
    return ForwardingInterface::CreateInstance(super_class, class_id);
  }
  INode* CreateObjectNode(Object* object) override {
    if (--nodes_left_ == 0) return nullptr;
    return ForwardingInterface::CreateObjectNode(object);
  }

 private:
  int instances_left_ = 0;
  int nodes_left_ = 0;
};

}  // namespace test
