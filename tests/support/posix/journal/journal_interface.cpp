#include "tests/support/posix/journal/journal_interface.h"

namespace test {

JournalInterface::JournalInterface(Journal& journal, ::Interface& own)
    : ForwardingInterface(own), journal_(journal) {
  journal_.NameWindow(own.GetSkelderHWnd(), "the main window");
}

// --- Progress bar ---

bool JournalInterface::ProgressStart(const char* title, bool show_bar, ProgressCallback callback,
                                     void* argument) {
  const std::string polled = callback == nullptr ? "none" : Shown(callback(argument));
  journal_.Note("progress start ", Quoted(title), ", bar? ", show_bar, ", callback answers ",
                polled);
  return ForwardingInterface::ProgressStart(title, show_bar, callback, argument);
}

void JournalInterface::ProgressUpdate(int percent, bool show_percent, const char* title) {
  journal_.Note("progress ", percent, show_percent ? "" : " without the number",
                title == nullptr ? "" : " titled " + Quoted(title));
  ForwardingInterface::ProgressUpdate(percent, show_percent, title);
}

void JournalInterface::ProgressEnd() {
  journal_.Note("progress end");
  ForwardingInterface::ProgressEnd();
}

bool JournalInterface::GetCancel() {
  const bool cancelled = ForwardingInterface::GetCancel();
  journal_.Note("cancelled? ", cancelled);
  return cancelled;
}

// --- Scene ---

INode* JournalInterface::GetSelNode(int i) {
  return scene_.Shown(ForwardingInterface::GetSelNode(i));
}

ClassInstance* JournalInterface::CreateInstance(SuperClassId super_class, ClassId class_id) {
  ClassInstance* const own = ForwardingInterface::CreateInstance(super_class, class_id);
  journal_.Note("create a ", ClassName(super_class, class_id), " of super class ", super_class,
                own == nullptr ? ": none" : "");
  return scene_.ShownInstance(own, super_class, class_id);
}

INode* JournalInterface::CreateObjectNode(Object* object) {
  INode* const own = ForwardingInterface::CreateObjectNode(OwnOf(object));
  journal_.Note("create a node for it: ", own == nullptr ? "none" : own->GetName());
  return scene_.Shown(own);
}

void JournalInterface::DeleteNode(INode* node, bool redraw) {
  journal_.Note("delete node ", NodeName(*OwnOf(node)), ", redrawing? ", redraw);
  ForwardingInterface::DeleteNode(OwnOf(node), redraw);
}

void JournalInterface::MakeNameUnique(CStr& name) {
  const std::string asked = name.data();
  ForwardingInterface::MakeNameUnique(name);
  journal_.Note("make the name ", asked, " unique: ", name.data());
}

INode* JournalInterface::GetRootNode() { return scene_.Shown(ForwardingInterface::GetRootNode()); }

INode* JournalInterface::GetINodeByHandle(NodeHandle handle) {
  INode* const own = ForwardingInterface::GetINodeByHandle(handle);
  journal_.Note("node of the handle? ", own == nullptr ? "none" : NodeName(*own));
  return scene_.Shown(own);
}

void JournalInterface::RedrawViews(TimeValue time) {
  journal_.Note("redraw the views at ", time);
  ForwardingInterface::RedrawViews(time);
}

// --- Time ---

TimeValue JournalInterface::GetTime() {
  const TimeValue time = ForwardingInterface::GetTime();
  journal_.Note("time? ", time);
  return time;
}

void JournalInterface::SetAnimRange(const Interval& range) {
  journal_.Note("animation range ", range);
  ForwardingInterface::SetAnimRange(range);
}

Interval JournalInterface::GetAnimRange() {
  const Interval range = ForwardingInterface::GetAnimRange();
  journal_.Note("animation range? ", range);
  return range;
}

bool JournalInterface::IsPlaybackRunning() {
  const bool runs = ForwardingInterface::IsPlaybackRunning();
  journal_.Note("playback runs? ", runs);
  return runs;
}

void JournalInterface::StopPlayback() {
  journal_.Note("stop playback");
  ForwardingInterface::StopPlayback();
}

// --- User interface ---

void JournalInterface::ProcessPendingMessages() {
  journal_.Note("process pending messages");
  ForwardingInterface::ProcessPendingMessages();
}

HWND JournalInterface::AddRollupPage(HINSTANCE module, int dialog_id,
                                     platform::DialogProcedure procedure, const char* title,
                                     std::intptr_t parameter, unsigned flags, int category) {
  journal_.Note("add rollup page ", dialog_id, " ", Quoted(title), ", flags ", flags, ", category ",
                category);
  return ForwardingInterface::AddRollupPage(module, dialog_id, procedure, title, parameter, flags,
                                            category);
}

void JournalInterface::DeleteRollupPage(HWND page) {
  journal_.Note("delete rollup page ", journal_.WindowName(page));
  ForwardingInterface::DeleteRollupPage(page);
}

void JournalInterface::SetPickMode(PickModeCallback* callback) {
  journal_.Note("enter the pick mode");
  ForwardingInterface::SetPickMode(callbacks_.Shown(callback));
}

void JournalInterface::ClearPickMode() {
  journal_.Note("leave the pick mode");
  ForwardingInterface::ClearPickMode();
}

INode* JournalInterface::PickNode(HWND window, const ViewportPoint& point,
                                  PickNodeCallback* filter) {
  INode* const own = ForwardingInterface::PickNode(window, point, callbacks_.Shown(filter));
  journal_.Note("node under the cursor, filtered? ", filter != nullptr, ": ",
                own == nullptr ? "none" : NodeName(*own));
  return scene_.Shown(own);
}

void JournalInterface::RegisterExitSkelderCallback(ExitSkelderCallback* callback) {
  journal_.Note("register an exit callback");
  ForwardingInterface::RegisterExitSkelderCallback(callbacks_.Shown(callback));
}

void JournalInterface::UnRegisterExitSkelderCallback(ExitSkelderCallback* callback) {
  journal_.Note("unregister the exit callback");
  ForwardingInterface::UnRegisterExitSkelderCallback(callbacks_.Shown(callback));
}

}  // namespace test
