#pragma once

#include "platform/handles.h"
#include "sdk/gfx/viewport.h"

class INode;

// What a plug-in hands to the host to be called back. The plug-in keeps owning these objects and
// takes them back (clear, unregister) before they die. All calls come on the user-interface thread.

// Decides which nodes may be picked.
class PickNodeCallback {
 public:
  // Whether `node` may be picked.
  virtual bool Filter(INode* node) = 0;

 protected:
  ~PickNodeCallback() = default;
};

// The host's pick mode, seen from the plug-in that entered it.
class PickModeCallback {
 public:
  // The user points at `point` in `window`: returns whether there is something to pick.
  virtual bool HitTest(HWND window, ViewportView* viewport, const ViewportPoint& point,
                       int flags) = 0;

  // The user clicked on something to pick. Returns true to end the pick mode.
  virtual bool Pick(ViewportView* viewport) = 0;

  // Whether the pick may be made while animation is being set up.
  virtual bool AllowAnimatablePick() = 0;

  // The user clicked the right button. Returns true to end the pick mode.
  virtual bool RightClick(ViewportView* viewport) = 0;

  // The pick mode begins and ends.
  virtual void EnterMode() = 0;
  virtual void ExitMode() = 0;

  // Cursors of the plug-in's own, or null for the host's.
  virtual void* DefaultCursor() = 0;
  virtual void* HitCursor() = 0;

  // Which nodes may be picked, or null for all.
  virtual PickNodeCallback* GetFilter() = 0;

  // Whether several nodes may be picked at once.
  virtual bool AllowMultipleSelection() = 0;

 protected:
  ~PickModeCallback() = default;
};

// Told when the host is about to exit.
class ExitSkelderCallback {
 public:
  // `window` is the host's main window.
  virtual void HostExiting(HWND window) = 0;

 protected:
  ~ExitSkelderCallback() = default;
};
