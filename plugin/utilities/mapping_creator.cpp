#include "plugin/utilities/mapping_creator.h"

#include "platform/file_dialog.h"
#include "plugin/exchange/attempt.h"
#include "plugin/exchange/failure_report.h"
#include "plugin/exchange/marker_colors.h"
#include "plugin/utilities/file_dialogs.h"

namespace orvane {
namespace {

using Button = MarkerSelectionDialog::Button;

constexpr char kStatus[] = "MNM File Creation Status";
constexpr FailureTexts kFailure{kStatus, "There is not enough memory to create the mapping file.",
                                "An unexpected error ended the creation of the mapping file."};

// The step after `index`. Intended: every time the user goes back moves by two before the usual
// step forward, so that in a step of two picks he may go back further; but not beyond the first
// step.
std::size_t StepAfter(std::size_t index, std::size_t backs, bool again) {
  if (backs == 0) return again ? index : index + 1;
  const std::size_t by = 2 * backs;
  return index + 1 > by ? index + 1 - by : 0;
}

}  // namespace

bool MappingCreator::CreateMNM(Interface* interface) {
  if (interface == nullptr) return false;
  interface_ = interface;
  bool is_created = false;
  const char* const failure = FailureOf([&] { is_created = Create(); }, kFailure);
  if (failure == nullptr || ended_) return is_created;
  End();
  services_.messages.Report(failure, kFailure.title);
  return false;
}

// What is left of it is done by whoever comes second, in the middle of a call of the first.
void MappingCreator::End() noexcept {
  if (interface_ == nullptr) return;
  ended_ = true;
  if (pending_) pending_->End();
  RestoreAll();
  interface_ = nullptr;
  dialog_.Close();
}

bool MappingCreator::Create() {
  const WristSticks sticks = AskForSticks();
  if (ended_ || !OpenDialog()) return false;
  if (!PickMarkers(sticks)) {
    End();
    return false;
  }
  dialog_.Close();
  return Save();
}

// While a question or dialog is shown, and in the middle of any call of the host, the creation may
// be ended.
WristSticks MappingCreator::AskForSticks() {
  constexpr char kTitle[] = "Pick optional markers?";
  WristSticks sticks;
  sticks.left = services_.messages.Ask("Are you using a left wrist stick?", kTitle);
  if (ended_) return sticks;
  sticks.right = services_.messages.Ask("Are you using a right wrist stick?", kTitle);
  return sticks;
}

bool MappingCreator::OpenDialog() {
  const HWND parent = interface_->GetSkelderHWnd();
  return !ended_ && dialog_.Open(services_.module, parent) && !ended_;
}

// Returns false when the creation is to be aborted.
bool MappingCreator::PickMarkers(const WristSticks& sticks) {
  std::size_t index = 0;
  while (index < kMarkerSteps) {
    const std::optional<StepAnswer> answer = PickStep(MarkerStepAt(index, sticks), index > 0);
    if (!answer) return false;
    index = StepAfter(index, answer->backs, answer->again);
  }
  return true;
}

// Intended: the second marker of a step is asked for whatever the user did about the first. Returns
// nothing when the creation is to be aborted.
std::optional<MappingCreator::StepAnswer> MappingCreator::PickStep(const MarkerStep& step,
                                                                   bool may_go_back) {
  StepAnswer answer;
  for (std::size_t i = 0; i < step.Count(); ++i) {
    const StandardMarker& marker = step.markers.at(i);
    dialog_.Ask(marker.description.data(), may_go_back, step.may_be_skipped);
    if (!PickMarker(marker)) return std::nullopt;
    if (dialog_.Pressed() == Button::kBack) ++answer.backs;
    if (services_.pick.WasRightClicked()) answer.again = true;
  }
  return answer;
}

// A button that was pressed meanwhile ends the pick without an entry. Returns false when the
// creation is to be aborted.
bool MappingCreator::PickMarker(const StandardMarker& marker) {
  if (!WaitForPick()) return false;
  INode* const node = services_.pick.PickedNode();
  if (node != nullptr && dialog_.Pressed() == Button::kNone) AddPicked(marker, *node);
  return !ended_;
}

// Lets the user pick, or takes the last entry back. Returns false when he aborts, and when there is
// nobody who could pick.
bool MappingCreator::WaitForPick() {
  pending_.emplace(*interface_, services_.pick);
  pending_->Begin();
  const bool could_pick = services_.pick.IsActive();
  while (!ended_ && pending_->IsWaiting() && dialog_.Pressed() == Button::kNone) {
    interface_->ProcessPendingMessages();
  }
  if (!ended_ && dialog_.Pressed() == Button::kBack) GoBack();
  const bool host_exits = pending_->HostIsExiting();
  pending_->End();
  pending_.reset();
  return could_pick && !ended_ && !host_exits && dialog_.Pressed() != Button::kAbort;
}

void MappingCreator::AddPicked(const StandardMarker& marker, INode& node) {
  converter_.mapping.Add(marker.name, node.GetName(), node.GetHandle());
  node.SetWireColor(kPickedMarkerColor);
  Redraw();
}

// Intended: the last entry goes, even if it is not of the step before.
void MappingCreator::GoBack() {
  RestoreLast();
  Redraw();
}

// Intended: after a failure the entries and the colours stay as they are.
bool MappingCreator::Save() {
  const std::optional<std::string> path = ChooseFile();
  if (ended_ || !path) return false;
  if (!converter_.mapping.Save(*path)) {
    services_.messages.Report("MNM File Creation Failed: Unable to open output file.", kStatus);
    return false;
  }
  converter_.mnmPath = *path;
  services_.messages.Report("MNM File Creation Successful", kStatus);
  if (ended_) return false;
  RestoreAll();
  return !ended_;
}

std::optional<std::string> MappingCreator::ChooseFile() {
  platform::FileDialog dialog;
  dialog.kind = platform::FileDialog::Kind::kSave;
  dialog.owner = interface_->GetSkelderHWnd();
  if (ended_) return std::nullopt;
  dialog.ask_before_replacing = true;
  return ChooseMappingFile(dialog, services_.strings, services_.module);
}

// Removes the last entry; its node, if it is still in the scene, gets its own colour.
void MappingCreator::RestoreLast() {
  const NodeHandle handle = converter_.mapping.RemoveLast();
  INode* const node = interface_->GetINodeByHandle(handle);
  if (node != nullptr && interface_ != nullptr) node->SetWireColor(kMarkerColor);
}

void MappingCreator::RestoreAll() noexcept {
  while (converter_.mapping.Count() > 0) Attempt([this] { RestoreLast(); });
  Attempt([this] { Redraw(); });
}

void MappingCreator::Redraw() {
  if (interface_ == nullptr) return;
  const TimeValue now = interface_->GetTime();
  if (interface_ != nullptr) interface_->RedrawViews(now);
}

}  // namespace orvane
