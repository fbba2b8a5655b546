#pragma once

#include "tests/support/forwarding_interface.h"
#include "tests/support/posix/journal/journal_callbacks.h"

namespace test {

// The host, as a plug-in sees it while a journal is kept.
class JournalInterface final : public ForwardingInterface {
 public:
  // `own` is the host's. Both outlive this object.
  JournalInterface(Journal& journal, ::Interface& own);

  bool ProgressStart(const char* title, bool show_bar, ProgressCallback callback,
                     void* argument) override;
  void ProgressUpdate(int percent, bool show_percent, const char* title) override;
  void ProgressEnd() override;
  bool GetCancel() override;
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
  Journal& journal_;
  JournalScene scene_{journal_};
  JournalCallbacks callbacks_{scene_};
};

}  // namespace test
