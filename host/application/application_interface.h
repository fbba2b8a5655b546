#pragma once

#include "sdk/core/interface.h"

// The application as plug-ins are given it. Nothing is decided or kept here. The application owns
// it.

namespace host {

class Application;

// What plug-ins see of an application: every operation of sdk/core/interface.h, forwarded to the
// part of the application that it is about. No state of its own.
class ApplicationInterface final : public ::Interface {
 public:
  // `application` owns this object.
  explicit ApplicationInterface(Application& application) : application_(application) {}

  ApplicationInterface(const ApplicationInterface&) = delete;
  ApplicationInterface& operator=(const ApplicationInterface&) = delete;

  bool ProgressStart(const char* title, bool show_bar, ProgressCallback callback,
                     void* argument) override;
  void ProgressUpdate(int percent, bool show_percent, const char* title) override;
  void ProgressEnd() override;
  bool GetCancel() override;

  int GetSelNodeCount() override;
  INode* GetSelNode(int i) override;

  ClassInstance* CreateInstance(SuperClassId super_class, ClassId class_id) override;
  INode* CreateObjectNode(Object* object) override;
  void DeleteNode(INode* node, bool redraw) override;
  void MakeNameUnique(CStr& name) override;
  INode* GetRootNode() override;
  INode* GetINodeByHandle(NodeHandle handle) override;
  void RedrawViews(TimeValue time) override;

  TimeValue GetTime() override;
  void SetAnimRange(const Interval& range) override;
  Interval GetAnimRange() override;
  bool IsPlaybackRunning() override;
  void StopPlayback() override;

  HWND GetSkelderHWnd() override;
  void ProcessPendingMessages() override;
  HWND AddRollupPage(HINSTANCE module, int dialog_id, platform::DialogProcedure procedure,
                     const char* title, std::intptr_t parameter, unsigned flags,
                     int category) override;
  void DeleteRollupPage(HWND page) override;
  void SetPickMode(PickModeCallback* callback) override;
  void ClearPickMode() override;
  INode* PickNode(HWND window, const ViewportPoint& point, PickNodeCallback* filter) override;
  void RegisterExitSkelderCallback(ExitSkelderCallback* callback) override;
  void UnRegisterExitSkelderCallback(ExitSkelderCallback* callback) override;

 private:
  Application& application_;
};

}  // namespace host
