#include "host/desktop/portable/live_desktop.h"

#include <algorithm>
#include <cassert>
#include <utility>

#include "host/desktop/portable/resolved_choice.h"
#include "host/desktop/script_failure.h"
#include "platform/portable/module_resources.h"
#include "platform/portable/resource_file.h"

namespace host {
namespace {

using platform::MessageBoxStyle;

constexpr const char* kGone = "It is not there any more";

bool HasButton(MessageBoxStyle style, platform::MessageBoxResult button) {
  return style == MessageBoxStyle::kYesNo
             ? button == platform::kMessageBoxYes || button == platform::kMessageBoxNo
             : button == platform::kMessageBoxOk;
}

// Why the person cannot use `control`; empty when he can.
std::string WhyUnusable(const OpenControl* control) {
  if (control == nullptr) return "The dialog has no such control";
  return control->state.enabled ? "" : "The control is disabled";
}

}  // namespace

LiveDesktop::LiveDesktop(LivePerson& person) : person_(person) { platform::InstallDesktop(this); }

LiveDesktop::~LiveDesktop() {
  assert(platform::CurrentDesktop() == this);
  platform::InstallDesktop(previous_);
}

std::vector<LiveDialog*> LiveDesktop::Dialogs() const {
  std::vector<LiveDialog*> open;
  for (const auto& dialog : dialogs_) {
    if (dialog->shown && !dialog->dialog.HasEnded()) open.push_back(dialog.get());
  }
  return open;
}

std::string LiveDesktop::WhyHeld() const {
  if (message_) return "A message waits for its answer";
  if (choice_) return "A choice of files waits";
  return TopModal() == nullptr ? "" : "A dialog is open";
}

std::string LiveDesktop::Use(int dialog, int control) {
  std::string refusal;
  LiveDialog* const used = Usable(dialog, refusal);
  if (used == nullptr) return refusal;
  OpenControl* const button = used->dialog.Find(control);
  if (control != platform::kCloseControl || button != nullptr) {
    refusal = WhyUnusable(button);
    if (!refusal.empty()) return refusal;
    if (!button->IsClickable()) return "The control is nothing to click";
    const bool is_check_box = button->state.kind == platform::ControlKind::kCheckBox;
    if (is_check_box) button->state.checked = !button->state.checked;
  }
  used->handler.Command(used->dialog, control);
  return "";
}

std::string LiveDesktop::Type(int dialog, int control, const std::string& text) {
  std::string refusal;
  LiveDialog* const used = Usable(dialog, refusal);
  if (used == nullptr) return refusal;
  OpenControl* const edit = used->dialog.Find(control);
  refusal = WhyUnusable(edit);
  if (!refusal.empty()) return refusal;
  if (!edit->IsTypable() || edit->state.read_only) return "The control is nothing to type into";
  edit->state.text = text;
  return "";
}

std::string LiveDesktop::Answer(int message, platform::MessageBoxResult button) {
  if (!message_ || message_->number != message) return kGone;
  if (!HasButton(message_->style, button)) return "The message has no such button";
  answer_ = button;
  message_.reset();
  return "";
}

std::string LiveDesktop::Choose(int choice, const std::vector<std::string>& paths) {
  if (!choice_ || choice_->number != choice) return kGone;
  try {
    if (paths.empty()) {
      chosen_->is_chosen = false;
    } else if (choice_->files == nullptr) {
      chosen_->is_chosen = WriteFolder(choice_->title, paths[0], chosen_->buffer, chosen_->size);
    } else {
      chosen_->is_chosen = ResolveChoice(*choice_->files, {paths, true})
                               .Write(chosen_->buffer, chosen_->size, *chosen_->name_offset);
    }
  } catch (const ScriptError& error) {
    return error.what();
  }
  choice_.reset();
  return "";
}

void LiveDesktop::ForgetEnded() {
  std::erase_if(dialogs_, [](const auto& dialog) { return dialog->dialog.HasEnded(); });
}

int LiveDesktop::ShowMessage(const char* text, const char* caption, MessageBoxStyle style) {
  const int number = ++last_number_;
  message_ = LiveMessage{number, text, caption, style};
  while (message_ && message_->number == number) person_.Act(true);
  return answer_;
}

int LiveDesktop::RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                           platform::DialogHandler& handler) {
  LiveDialog* const open = Open(module, dialog_id, parent, handler, true);
  if (open == nullptr) return platform::kDialogNotCreated;
  open->shown = true;
  while (!open->dialog.HasEnded()) person_.Act(true);
  return open->dialog.Result();
}

platform::Dialog* LiveDesktop::CreateModeless(HINSTANCE module, int dialog_id, HWND parent,
                                              platform::DialogHandler& handler) {
  LiveDialog* const open = Open(module, dialog_id, parent, handler, false);
  return open == nullptr ? nullptr : &open->dialog;
}

void LiveDesktop::ShowModeless(platform::Dialog& dialog) {
  if (LiveDialog* const found = Find(dialog)) found->shown = true;
}

void LiveDesktop::DestroyModeless(platform::Dialog& dialog) {
  if (LiveDialog* const found = Find(dialog)) found->dialog.Close();
}

platform::Dialog* LiveDesktop::FindModeless(HWND window) {
  const auto found = std::find_if(dialogs_.begin(), dialogs_.end(), [window](const auto& each) {
    return !each->modal && !each->dialog.HasEnded() && each->dialog.Window() == window;
  });
  return found == dialogs_.end() ? nullptr : &(*found)->dialog;
}

bool LiveDesktop::ProcessPendingMessages(bool awaited) {
  person_.Act(awaited);
  return true;
}

bool LiveDesktop::ChooseFiles(const platform::FileDialog& dialog, char* buffer, std::size_t size,
                              std::size_t& name_offset) {
  return AwaitChoice({++last_number_, dialog.title, &dialog}, {buffer, size, &name_offset});
}

bool LiveDesktop::ChooseFolder(HWND /*owner*/, const char* title, char* buffer, std::size_t size) {
  return AwaitChoice({++last_number_, title}, {buffer, size, nullptr});
}

bool LiveDesktop::AwaitChoice(LiveChoice choice, Chosen chosen) {
  choice_ = std::move(choice);
  chosen_ = &chosen;
  while (choice_) person_.Act(true);
  chosen_ = nullptr;
  return chosen.is_chosen;
}

LiveDialog* LiveDesktop::Open(HINSTANCE module, int dialog_id, HWND parent,
                              platform::DialogHandler& handler, bool modal) {
  std::optional<platform::DialogTemplate> found =
      platform::FindDialog(platform::ResourceFileOf(module), static_cast<unsigned int>(dialog_id));
  if (!found) return nullptr;
  dialogs_.push_back(std::make_unique<LiveDialog>(++last_number_, dialog_id, std::move(*found),
                                                  parent, handler, modal));
  LiveDialog* const opened = dialogs_.back().get();
  handler.Initialize(opened->dialog);
  return opened;
}

LiveDialog* LiveDesktop::Find(const platform::Dialog& dialog) const {
  const auto found = std::find_if(dialogs_.begin(), dialogs_.end(), [&dialog](const auto& each) {
    return &each->dialog == &dialog && !each->dialog.HasEnded();
  });
  return found == dialogs_.end() ? nullptr : found->get();
}

LiveDialog* LiveDesktop::Usable(int number, std::string& refusal) const {
  const LiveDialog* const modal = TopModal();
  const bool is_top = modal != nullptr && modal->number == number && !message_ && !choice_;
  if (!is_top) refusal = WhyHeld();
  if (!refusal.empty()) return nullptr;
  for (LiveDialog* const dialog : Dialogs()) {
    if (dialog->number == number) return dialog;
  }
  refusal = kGone;
  return nullptr;
}

const LiveDialog* LiveDesktop::TopModal() const {
  const auto found = std::find_if(dialogs_.rbegin(), dialogs_.rend(), [](const auto& dialog) {
    return dialog->modal && !dialog->dialog.HasEnded();
  });
  return found == dialogs_.rend() ? nullptr : found->get();
}

}  // namespace host
