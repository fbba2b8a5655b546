#pragma once

#include <cstdint>

#include "platform/handles.h"
#include "sdk/core/callbacks.h"
#include "sdk/core/class_id.h"
#include "sdk/core/cstr.h"
#include "sdk/core/interval.h"
#include "sdk/core/node.h"
#include "sdk/core/types.h"

// The host's main interface, through which a plug-in reaches the scene and the user. The host
// passes it to the plug-in and owns it; it is valid for the whole call it was passed to, or, for a
// utility, until EndEditParams. Called on the user-interface thread.
class Interface {
 public:
  // --- Progress bar ---

  // Opens a progress bar titled `title`. `callback` is polled with `argument` while it is open.
  // Returns false when the host could not open it.
  virtual bool ProgressStart(const char* title, bool show_bar, ProgressCallback callback,
                             void* argument) = 0;

  // Shows `percent` (0 to 100), as a number too when `show_percent` is set, and changes the title
  // unless `title` is null.
  virtual void ProgressUpdate(int percent, bool show_percent = true,
                              const char* title = nullptr) = 0;

  virtual void ProgressEnd() = 0;

  // Whether the user asked to cancel since the progress bar was opened.
  virtual bool GetCancel() = 0;

  // --- Selection ---

  virtual int GetSelNodeCount() = 0;

  // Selected node `i`, in the order of selection, from 0; null when there is none.
  virtual INode* GetSelNode(int i) = 0;

  // --- Scene ---

  // Creates an object or a controller. It is the caller's, to be given to the scene or deleted.
  // Returns null when the host does not know the class. The result is an Object for object super
  // classes and a Control for controller super classes.
  virtual ClassInstance* CreateInstance(SuperClassId super_class, ClassId class_id) = 0;

  // Creates a node under the scene root that shows `object` and takes it over. Returns null when it
  // cannot.
  virtual INode* CreateObjectNode(Object* object) = 0;

  // Deletes `node`; its children go to its parent with their world transforms kept. `redraw`
  // redraws the views after it.
  virtual void DeleteNode(INode* node, bool redraw) = 0;

  // Changes `name` so that no node of the scene has it.
  virtual void MakeNameUnique(CStr& name) = 0;

  virtual INode* GetRootNode() = 0;

  // The node with that handle, or null when it is not in the scene any more.
  virtual INode* GetINodeByHandle(NodeHandle handle) = 0;

  virtual void RedrawViews(TimeValue time) = 0;

  // --- Time ---

  // The current time, in ticks.
  virtual TimeValue GetTime() = 0;

  virtual void SetAnimRange(const Interval& range) = 0;
  virtual Interval GetAnimRange() = 0;

  virtual bool IsPlaybackRunning() = 0;
  virtual void StopPlayback() = 0;

  // --- User interface ---

  virtual HWND GetSkelderHWnd() = 0;

  // Lets the host handle what is waiting for its windows.
  virtual void ProcessPendingMessages() = 0;

  // Adds a page to the command panel, made from dialog `dialog_id` of `module` and titled `title`.
  // `procedure` gets `parameter` with the initialisation message. Returns the page's window, or
  // null.
  virtual HWND AddRollupPage(HINSTANCE module, int dialog_id, platform::DialogProcedure procedure,
                             const char* title, std::intptr_t parameter, unsigned flags,
                             int category) = 0;
  virtual void DeleteRollupPage(HWND page) = 0;

  // Enters pick mode with `callback`, which stays the plug-in's and must outlive the mode; leaves
  // it.
  virtual void SetPickMode(PickModeCallback* callback) = 0;
  virtual void ClearPickMode() = 0;

  // The node at `point` of `window` that `filter` lets pass (null: any), or null.
  virtual INode* PickNode(HWND window, const ViewportPoint& point, PickNodeCallback* filter) = 0;

  // `callback` stays the plug-in's, which unregisters it before it dies.
  virtual void RegisterExitSkelderCallback(ExitSkelderCallback* callback) = 0;
  virtual void UnRegisterExitSkelderCallback(ExitSkelderCallback* callback) = 0;

 protected:
  ~Interface() = default;
};

// Services of a running import, export or utility. The plug-in keeps them as pointers only.
class ImpInterface;
class ExpInterface;
class IUtil;
