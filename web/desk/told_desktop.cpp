#include "web/desk/told_desktop.h"

#include <algorithm>
#include <array>
#include <utility>

#include "web/desk/told.h"

namespace web {
namespace {

using host::DialogControl;
using host::LiveChoice;
using host::LiveDialog;
using host::LiveMessage;
using platform::ControlKind;
using platform::ControlTemplate;
using Layout = cli::JsonWriter::Layout;

const char* NameOf(ControlKind kind) {
  constexpr std::array<const char*, 8> kNames = {
      "push-button", "check-box", "radio-button", "group-box", "edit", "label", "image", "other"};
  return kNames[static_cast<std::size_t>(kind)];
}

bool IsDefault(const ControlTemplate& control) {
  constexpr std::uint32_t kButtonTypes = 0x0F;
  constexpr std::uint32_t kDefaultButton = 1;
  return control.kind == ControlKind::kPushButton &&
         (control.style & kButtonTypes) == kDefaultButton;
}

// The host's own edit control is one to the person, too.
ControlKind KindOf(const host::OpenControl& control) {
  return control.IsTypable() ? ControlKind::kEdit : control.state.kind;
}

void WriteControl(cli::JsonWriter& json, const ControlTemplate& made_of,
                  const host::OpenControl& control) {
  json.BeginObject();
  cli::WriteInteger(json, "id", control.state.id);
  cli::WriteText(json, "kind", NameOf(KindOf(control)));
  cli::WriteText(json, "text", control.state.text);
  cli::WriteInteger(json, "x", made_of.area.x);
  cli::WriteInteger(json, "y", made_of.area.y);
  cli::WriteInteger(json, "width", made_of.area.width);
  cli::WriteInteger(json, "height", made_of.area.height);
  WriteBool(json, "enabled", control.state.enabled);
  WriteBool(json, "checked", control.state.checked);
  WriteBool(json, "readOnly", control.state.read_only);
  WriteBool(json, "isDefault", IsDefault(made_of));
  WriteBool(json, "tabStop", (made_of.style & platform::kStyleTabStop) != 0);
  WriteBool(json, "groupStart", (made_of.style & platform::kStyleGroup) != 0);
  json.EndObject();
}

// Its own, or that of the page which it is.
std::string TitleOf(LiveDialog& dialog, const host::RollupPages& pages) {
  for (const host::RollupPage& page : pages.Open()) {
    if (page.window == dialog.dialog.Window()) return page.title;
  }
  return dialog.made_of.title;
}

std::vector<DialogControl> StatesOf(const LiveDialog& dialog) {
  std::vector<DialogControl> states;
  states.reserve(dialog.dialog.Controls().size());
  for (const host::OpenControl& control : dialog.dialog.Controls()) {
    states.push_back(control.state);
  }
  return states;
}

bool IsSame(const DialogControl& one, const DialogControl& other) {
  return one.text == other.text && one.enabled == other.enabled && one.checked == other.checked;
}

void TellMessage(const LiveMessage& message) {
  const bool is_question = message.style == platform::MessageBoxStyle::kYesNo;
  Telling telling("message");
  cli::WriteInteger(telling.Json(), "box", message.number);
  cli::WriteText(telling.Json(), "text", message.text);
  cli::WriteText(telling.Json(), "caption", message.caption);
  cli::WriteTexts(
      telling.Json(), "buttons",
      is_question ? std::vector<std::string>{"yes", "no"} : std::vector<std::string>{"ok"});
  telling.Send();
}

void TellChoice(const LiveChoice& choice) {
  Telling telling(choice.files == nullptr ? "choose-folder" : "choose-files");
  cli::WriteInteger(telling.Json(), "choice", choice.number);
  cli::WriteText(telling.Json(), "title", choice.title);
  if (choice.files != nullptr) {
    cli::WriteText(telling.Json(), "filter", choice.files->filter_name);
    cli::WriteText(telling.Json(), "pattern", choice.files->filter_pattern);
    cli::WriteText(telling.Json(), "extension", choice.files->default_extension);
    WriteBool(telling.Json(), "many", choice.files->several);
    WriteBool(telling.Json(), "save", choice.files->kind == platform::FileDialog::Kind::kSave);
  }
  telling.Send();
}

void TellNumber(const char* what, const char* key, int number) {
  Telling telling(what);
  cli::WriteInteger(telling.Json(), key, number);
  telling.Send();
}

// Tells that what has the number `told` is gone, and takes over the number of what is there now.
// Returns whether that is something new.
template <typename Shown>
bool TakeOver(const Shown* shown, int& told, const char* gone, const char* key) {
  const int number = shown == nullptr ? 0 : shown->number;
  if (number == told) return false;
  if (told != 0) TellNumber(gone, key, told);
  told = number;
  return number != 0;
}

}  // namespace

void ToldDesktop::Update(const host::LiveDesktop& desktop, const host::RollupPages& pages) {
  TellGone(desktop);
  for (LiveDialog* const dialog : desktop.Dialogs()) {
    const auto told = dialogs_.find(dialog->number);
    if (told == dialogs_.end()) {
      TellDialog(*dialog, pages);
    } else {
      TellChanges(*dialog, told->second);
    }
  }
  if (TakeOver(desktop.Message(), message_, "message-gone", "box")) TellMessage(*desktop.Message());
  if (TakeOver(desktop.Choice(), choice_, "choice-gone", "choice")) TellChoice(*desktop.Choice());
}

void ToldDesktop::TakeTyped(int dialog, int control, const std::string& text) {
  const auto told = dialogs_.find(dialog);
  if (told == dialogs_.end()) return;
  for (DialogControl& state : told->second) {
    if (state.id == control) state.text = text;
  }
}

void ToldDesktop::TellGone(const host::LiveDesktop& desktop) {
  const std::vector<LiveDialog*> open = desktop.Dialogs();
  std::erase_if(dialogs_, [&open](const auto& told) {
    const bool is_gone = std::none_of(open.begin(), open.end(), [&told](const auto* dialog) {
      return dialog->number == told.first;
    });
    if (is_gone) TellNumber("dialog-gone", "dialog", told.first);
    return is_gone;
  });
}

void ToldDesktop::TellDialog(LiveDialog& dialog, const host::RollupPages& pages) {
  Telling telling("dialog");
  cli::JsonWriter& json = telling.Json();
  json.Key("shown");
  json.BeginObject();
  cli::WriteInteger(json, "dialog", dialog.number);
  cli::WriteInteger(json, "template", dialog.id);
  cli::WriteText(json, "title", TitleOf(dialog, pages));
  cli::WriteInteger(json, "width", dialog.made_of.area.width);
  cli::WriteInteger(json, "height", dialog.made_of.area.height);
  WriteBool(json, "modal", dialog.modal);
  WriteBool(json, "closeBox", (dialog.made_of.style & platform::kStyleCloseBox) != 0);
  json.Key("controls");
  json.BeginArray(Layout::kLines);
  for (std::size_t i = 0; i < dialog.made_of.controls.size(); ++i) {
    WriteControl(json, dialog.made_of.controls[i], dialog.dialog.Controls()[i]);
  }
  json.EndArray();
  json.EndObject();
  telling.Send();
  dialogs_[dialog.number] = StatesOf(dialog);
}

void ToldDesktop::TellChanges(const LiveDialog& dialog, Controls& told) {
  Controls now = StatesOf(dialog);
  if (std::equal(now.begin(), now.end(), told.begin(), IsSame)) return;
  Telling telling("controls");
  cli::JsonWriter& json = telling.Json();
  cli::WriteInteger(json, "dialog", dialog.number);
  json.Key("changed");
  json.BeginArray(Layout::kLines);
  for (std::size_t i = 0; i < now.size(); ++i) {
    if (IsSame(now[i], told[i])) continue;
    json.BeginObject();
    cli::WriteCount(json, "index", i);
    cli::WriteText(json, "text", now[i].text);
    WriteBool(json, "enabled", now[i].enabled);
    WriteBool(json, "checked", now[i].checked);
    json.EndObject();
  }
  json.EndArray();
  telling.Send();
  told = std::move(now);
}

}  // namespace web
