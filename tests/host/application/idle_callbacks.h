#pragma once

#include "sdk/core/callbacks.h"

// Callbacks of a plug-in that do nothing when they are called.

class IdlePickMode : public PickModeCallback {
 public:
  bool HitTest(HWND, ViewportView*, const ViewportPoint&, int) override { return false; }
  bool Pick(ViewportView*) override { return true; }
  bool AllowAnimatablePick() override { return true; }
  bool RightClick(ViewportView*) override { return true; }
  void EnterMode() override {}
  void ExitMode() override {}
  void* DefaultCursor() override { return nullptr; }
  void* HitCursor() override { return nullptr; }
  PickNodeCallback* GetFilter() override { return nullptr; }
  bool AllowMultipleSelection() override { return false; }

 protected:
  ~IdlePickMode() = default;
};

class IdleExit final : public ExitSkelderCallback {
 public:
  void HostExiting(HWND /*window*/) override {}
};
