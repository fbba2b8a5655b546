#include "host/application/application.h"

namespace host {

// --- Progress bar ---

bool ApplicationInterface::ProgressStart(const char* title, bool show_bar,
                                         ProgressCallback callback, void* argument) {
  if (!application_.progress().Start(title, show_bar, callback, argument)) return false;
  application_.cancellation().BarOpened();
  return true;
}

void ApplicationInterface::ProgressUpdate(int percent, bool show_percent, const char* title) {
  const bool go_on = application_.progress().Update(percent, show_percent, title);
  if (!go_on) application_.cancellation().Request();
}

void ApplicationInterface::ProgressEnd() { application_.progress().End(); }

bool ApplicationInterface::GetCancel() {
  return application_.cancellation().Query(application_.progress().Percent());
}

// --- Selection ---

int ApplicationInterface::GetSelNodeCount() {
  return static_cast<int>(application_.scene().Selection().size());
}

INode* ApplicationInterface::GetSelNode(int i) {
  const auto& selection = application_.scene().Selection();
  if (i < 0 || static_cast<std::size_t>(i) >= selection.size()) return nullptr;
  return selection[static_cast<std::size_t>(i)];
}

// --- Scene ---

ClassInstance* ApplicationInterface::CreateInstance(SuperClassId super_class, ClassId class_id) {
  return application_.scene().CreateInstance(super_class, class_id);
}

INode* ApplicationInterface::CreateObjectNode(Object* object) {
  return application_.scene().CreateNode(object);
}

void ApplicationInterface::DeleteNode(INode* node, bool redraw) {
  application_.scene().DeleteNode(node);
  if (redraw) application_.scene().Redraw();
}

void ApplicationInterface::MakeNameUnique(CStr& name) {
  name = application_.scene().MakeNameUnique(name.data()).c_str();
}

INode* ApplicationInterface::GetRootNode() { return &application_.scene().Root(); }

INode* ApplicationInterface::GetINodeByHandle(NodeHandle handle) {
  return application_.scene().FindByHandle(handle);
}

void ApplicationInterface::RedrawViews(TimeValue /*time*/) { application_.scene().Redraw(); }

// --- Time ---

TimeValue ApplicationInterface::GetTime() { return application_.scene().Animation().Time(); }

void ApplicationInterface::SetAnimRange(const Interval& range) {
  application_.scene().Animation().SetRange(range);
}

Interval ApplicationInterface::GetAnimRange() { return application_.scene().Animation().Range(); }

bool ApplicationInterface::IsPlaybackRunning() { return application_.IsPlaybackRunning(); }

void ApplicationInterface::StopPlayback() { application_.StopPlayback(); }

// --- User interface ---

HWND ApplicationInterface::GetSkelderHWnd() { return application_.main_window(); }

void ApplicationInterface::ProcessPendingMessages() { application_.ProcessPendingMessages(); }

HWND ApplicationInterface::AddRollupPage(HINSTANCE module, int dialog_id,
                                         platform::DialogProcedure procedure, const char* title,
                                         std::intptr_t parameter, unsigned flags, int category) {
  return application_.rollup_pages().Add(module, dialog_id, application_.main_window(), procedure,
                                         parameter,
                                         {nullptr, title == nullptr ? "" : title, flags, category});
}

void ApplicationInterface::DeleteRollupPage(HWND page) { application_.rollup_pages().Delete(page); }

void ApplicationInterface::SetPickMode(PickModeCallback* callback) {
  application_.callbacks().SetPickMode(callback);
}

void ApplicationInterface::ClearPickMode() { application_.callbacks().SetPickMode(nullptr); }

INode* ApplicationInterface::PickNode(HWND /*window*/, const ViewportPoint& /*point*/,
                                      PickNodeCallback* filter) {
  return application_.picking().NodeUnderCursor(filter);
}

void ApplicationInterface::RegisterExitSkelderCallback(ExitSkelderCallback* callback) {
  application_.callbacks().RegisterExit(callback);
}

void ApplicationInterface::UnRegisterExitSkelderCallback(ExitSkelderCallback* callback) {
  application_.callbacks().UnregisterExit(callback);
}

}  // namespace host
