#pragma once

#include <functional>
#include <string>
#include <utility>

#include "tests/support/forwarding_interface.h"

namespace test {

// Lets a test do something before or after any call of the host, by the name of its operation: what
// a user does while the host handles its messages, or throw; but not after a call that throws.
class HookedInterface final : public ForwardingInterface {
 public:
  using Hook = std::function<void(const std::string& operation)>;
  using ForwardingInterface::ForwardingInterface;

  Hook before;
  Hook after;

  bool ProgressStart(const char* title, bool show_bar, ProgressCallback callback,
                     void* argument) override {
    const Hooks hooks(*this, "ProgressStart");
    return ForwardingInterface::ProgressStart(title, show_bar, callback, argument);
  }
  void ProgressUpdate(int percent, bool show_percent, const char* title) override {
    const Hooks hooks(*this, "ProgressUpdate");
    ForwardingInterface::ProgressUpdate(percent, show_percent, title);
  }
  void ProgressEnd() override {
    const Hooks hooks(*this, "ProgressEnd");
    ForwardingInterface::ProgressEnd();
  }
  bool GetCancel() override {
    const Hooks hooks(*this, "GetCancel");
    return ForwardingInterface::GetCancel();
  }
  int GetSelNodeCount() override {
    const Hooks hooks(*this, "GetSelNodeCount");
    return ForwardingInterface::GetSelNodeCount();
  }
  INode* GetSelNode(int i) override {
    const Hooks hooks(*this, "GetSelNode");
    return ForwardingInterface::GetSelNode(i);
  }
  ClassInstance* CreateInstance(SuperClassId super_class, ClassId class_id) override {
    const Hooks hooks(*this, "CreateInstance");
    return ForwardingInterface::CreateInstance(super_class, class_id);
  }
  INode* CreateObjectNode(Object* object) override {
    const Hooks hooks(*this, "CreateObjectNode");
    return ForwardingInterface::CreateObjectNode(object);
  }
  void DeleteNode(INode* node, bool redraw) override {
    const Hooks hooks(*this, "DeleteNode");
    ForwardingInterface::DeleteNode(node, redraw);
  }
  void MakeNameUnique(CStr& name) override {
    const Hooks hooks(*this, "MakeNameUnique");
    ForwardingInterface::MakeNameUnique(name);
  }
  INode* GetRootNode() override {
    const Hooks hooks(*this, "GetRootNode");
    return ForwardingInterface::GetRootNode();
  }
  INode* GetINodeByHandle(NodeHandle handle) override {
    const Hooks hooks(*this, "GetINodeByHandle");
    return ForwardingInterface::GetINodeByHandle(handle);
  }
  void RedrawViews(TimeValue time) override {
    const Hooks hooks(*this, "RedrawViews");
    ForwardingInterface::RedrawViews(time);
  }
  TimeValue GetTime() override {
    const Hooks hooks(*this, "GetTime");
    return ForwardingInterface::GetTime();
  }
  void SetAnimRange(const Interval& range) override {
    const Hooks hooks(*this, "SetAnimRange");
    ForwardingInterface::SetAnimRange(range);
  }
  Interval GetAnimRange() override {
    const Hooks hooks(*this, "GetAnimRange");
    return ForwardingInterface::GetAnimRange();
  }
  bool IsPlaybackRunning() override {
    const Hooks hooks(*this, "IsPlaybackRunning");
    return ForwardingInterface::IsPlaybackRunning();
  }
  void StopPlayback() override {
    const Hooks hooks(*this, "StopPlayback");
    ForwardingInterface::StopPlayback();
  }
  HWND GetSkelderHWnd() override {
    const Hooks hooks(*this, "GetSkelderHWnd");
    return ForwardingInterface::GetSkelderHWnd();
  }
  void ProcessPendingMessages() override {
    const Hooks hooks(*this, "ProcessPendingMessages");
    ForwardingInterface::ProcessPendingMessages();
  }
  HWND AddRollupPage(HINSTANCE module, int dialog_id, platform::DialogProcedure procedure,
                     const char* title, std::intptr_t parameter, unsigned flags,
                     int category) override {
    const Hooks hooks(*this, "AddRollupPage");
    return ForwardingInterface::AddRollupPage(module, dialog_id, procedure, title, parameter, flags,
                                              category);
  }
  void DeleteRollupPage(HWND page) override {
    const Hooks hooks(*this, "DeleteRollupPage");
    ForwardingInterface::DeleteRollupPage(page);
  }
  void SetPickMode(PickModeCallback* callback) override {
    const Hooks hooks(*this, "SetPickMode");
    ForwardingInterface::SetPickMode(callback);
  }
  void ClearPickMode() override {
    const Hooks hooks(*this, "ClearPickMode");
    ForwardingInterface::ClearPickMode();
  }
  INode* PickNode(HWND window, const ViewportPoint& point, PickNodeCallback* filter) override {
    const Hooks hooks(*this, "PickNode");
    return ForwardingInterface::PickNode(window, point, filter);
  }
  void RegisterExitSkelderCallback(ExitSkelderCallback* callback) override {
    const Hooks hooks(*this, "RegisterExitSkelderCallback");
    ForwardingInterface::RegisterExitSkelderCallback(callback);
  }
  void UnRegisterExitSkelderCallback(ExitSkelderCallback* callback) override {
    const Hooks hooks(*this, "UnRegisterExitSkelderCallback");
    ForwardingInterface::UnRegisterExitSkelderCallback(callback);
  }

 private:
  // Around one call.
  class Hooks {
   public:
    Hooks(const HookedInterface& host, std::string operation)
        : host_(host), operation_(std::move(operation)) {
      if (host_.before) host_.before(operation_);
    }
    Hooks(const Hooks&) = delete;
    Hooks& operator=(const Hooks&) = delete;
    ~Hooks() noexcept(false) {
      if (host_.after) host_.after(operation_);
    }

   private:
    const HookedInterface& host_;
    std::string operation_;
  };
};

}  // namespace test
