#pragma once

#include <cstddef>

#include "host/application/cancellation.h"
#include "host/application/picking.h"
#include "host/application/plugin_callbacks.h"
#include "host/application/progress_bar.h"
#include "host/application/rollup_pages.h"
#include "host/desktop/top_level_window.h"
#include "host/scene/scene.h"
#include "platform/export.h"
#include "sdk/core/interface.h"

// The stand-in application: one scene, and around it what a plug-in meets besides: progress bar,
// cancelling, playback, callbacks, pick mode, rollup pages, main window. Each part tells by itself
// what was done to it; calls against the rules of the SDK are noted in scene().Misuse(). Loading
// plug-ins is the job of host/application/module.h.
//
// Faults that a test may ask for stand with what they befall: RefuseAllocation
// (host/base/heap_control.h), scene().Faults() for controllers, cancellation(), StartPlayback, and
// the desktop's own for dialogs.

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

class SKELDER_API Application {
 public:
  // A new application with a new scene. It is the current one until it is destroyed; then the one
  // that was current before is again.
  // REQUIRES: applications are destroyed in reverse order.
  Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;
  ~Application();

  // The application that the SDK's global functions act on, or null. Without one they do nothing
  // and answer as a new application would.
  static Application* Current();

  // What plug-ins are given. Valid as long as the application.
  ::Interface& plugin_interface() { return interface_; }

  Scene& scene() { return scene_; }
  ProgressBar& progress() { return progress_; }
  Cancellation& cancellation() { return cancellation_; }
  PluginCallbacks& callbacks() { return callbacks_; }
  Picking& picking() { return picking_; }
  RollupPages& rollup_pages() { return rollup_pages_; }
  HWND main_window() const { return main_window_.Handle(); }

  // The host's own edit controls that plug-ins have obtained and not released.
  int HeldCustomEdits() const { return held_custom_edits_; }
  void CustomEditObtained() { ++held_custom_edits_; }

  // Releasing what nobody holds is a misuse.
  void CustomEditReleased();

  // Playback of the animation. It runs only as a state: time stands still.
  bool IsPlaybackRunning() const { return playback_running_; }
  void StartPlayback() { playback_running_ = true; }
  void StopPlayback() { playback_running_ = false; }

  // A plug-in lets the application handle its pending messages: the user of the desktop in use may
  // act. When he is awaited, because a pick mode is on, and there is nobody who could act, the
  // application exits.
  void ProcessPendingMessages();

  // How often that happened.
  std::size_t PendingMessageCalls() const { return pending_message_calls_; }

  // The application is about to exit: the exit callbacks are told, and the pick mode is left. Its
  // parts can be looked at afterwards.
  void Exit();
  bool HasExited() const { return exited_; }

 private:
  Application* previous_;
  ApplicationInterface interface_{*this};
  Scene scene_;
  ProgressBar progress_{scene_.Misuse()};
  Cancellation cancellation_;
  PluginCallbacks callbacks_{scene_.Misuse()};
  Picking picking_{callbacks_};
  RollupPages rollup_pages_{scene_.Misuse()};
  TopLevelWindow main_window_;
  bool playback_running_ = false;
  std::size_t pending_message_calls_ = 0;
  bool exited_ = false;
  int held_custom_edits_ = 0;
};

}  // namespace host
