#include "tests/support/posix/journal/journal_desktop.h"

#include <string>

namespace test {
namespace {

// "open dialog", and what its user may do.
std::string Described(const platform::FileDialog& dialog) {
  std::string text = dialog.kind == platform::FileDialog::Kind::kOpen ? "open" : "save";
  text += " file dialog " + Quoted(dialog.title) + ", " + Quoted(dialog.filter_name) + ", " +
          dialog.filter_pattern + ", extension " + dialog.default_extension;
  if (*dialog.initial_folder != '\0') text += ", in " + Quoted(dialog.initial_folder);
  if (dialog.several) text += ", several";
  if (dialog.file_must_exist) text += ", file must exist";
  if (dialog.folder_must_exist) text += ", folder must exist";
  if (dialog.ask_before_replacing) text += ", asking before replacing";
  if (dialog.hide_read_only_box) text += ", no read-only box";
  return text;
}

}  // namespace

// Lets a dialog's own handler see the dialog that notes its calls.
class JournalDesktop::Handler final : public platform::DialogHandler {
 public:
  Handler(JournalDesktop& desktop, platform::DialogHandler& own, int id)
      : desktop_(desktop), own_(own), id_(id) {}

  void Initialize(platform::Dialog& dialog) override {
    own_.Initialize(desktop_.Keep(dialog, id_));
  }
  void Command(platform::Dialog& dialog, int control) override {
    desktop_.journal_.Note("the user uses ", control, " of dialog ", id_);
    own_.Command(*desktop_.Kept(&dialog), control);
  }

 private:
  JournalDesktop& desktop_;
  platform::DialogHandler& own_;
  int id_;
};

JournalDesktop::JournalDesktop(Journal& journal) : journal_(journal) {}

JournalDesktop::~JournalDesktop() = default;

int JournalDesktop::ShowMessage(const char* text, const char* caption,
                                platform::MessageBoxStyle style) {
  const bool asks = style == platform::MessageBoxStyle::kYesNo;
  journal_.Note(asks ? "ask " : "message ", Quoted(caption), ": ", Quoted(text));
  const int button = ForwardingDesktop::ShowMessage(text, caption, style);
  if (asks) journal_.Note("the user answers ", button == platform::kMessageBoxYes);
  return button;
}

int JournalDesktop::RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                              platform::DialogHandler& handler) {
  journal_.Note("run dialog ", dialog_id, " over ", journal_.WindowName(parent));
  return ForwardingDesktop::RunDialog(module, dialog_id, parent, HandlerOf(handler, dialog_id));
}

platform::Dialog* JournalDesktop::CreateModeless(HINSTANCE module, int dialog_id, HWND parent,
                                                 platform::DialogHandler& handler) {
  journal_.Note("create dialog ", dialog_id, " over ", journal_.WindowName(parent));
  return Kept(
      ForwardingDesktop::CreateModeless(module, dialog_id, parent, HandlerOf(handler, dialog_id)));
}

void JournalDesktop::ShowModeless(platform::Dialog& dialog) {
  auto& shown = static_cast<JournalDialog&>(dialog);
  journal_.Note("show ", shown.Name());
  ForwardingDesktop::ShowModeless(shown.Own());
}

void JournalDesktop::DestroyModeless(platform::Dialog& dialog) {
  auto& shown = static_cast<JournalDialog&>(dialog);
  journal_.Note("destroy ", shown.Name());
  ForwardingDesktop::DestroyModeless(shown.Own());
}

platform::Dialog* JournalDesktop::FindModeless(HWND window) {
  return Kept(ForwardingDesktop::FindModeless(window));
}

bool JournalDesktop::ChooseFiles(const platform::FileDialog& dialog, char* buffer, std::size_t size,
                                 std::size_t& name_offset) {
  journal_.Note(Described(dialog), ", room for ", size, ", over ",
                journal_.WindowName(dialog.owner));
  const bool chosen = ForwardingDesktop::ChooseFiles(dialog, buffer, size, name_offset);
  journal_.Note("the user chooses ", chosen ? Quoted(buffer) : "nothing");
  return chosen;
}

bool JournalDesktop::ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size) {
  journal_.Note("folder dialog ", Quoted(title), " over ", journal_.WindowName(owner));
  const bool chosen = ForwardingDesktop::ChooseFolder(owner, title, buffer, size);
  journal_.Note("the user chooses ", chosen ? Quoted(buffer) : "nothing");
  return chosen;
}

platform::Dialog& JournalDesktop::Keep(platform::Dialog& own, int id) {
  all_dialogs_.push_back(std::make_unique<JournalDialog>(journal_, own, id));
  dialogs_[&own] = all_dialogs_.back().get();
  return *dialogs_[&own];
}

platform::Dialog* JournalDesktop::Kept(platform::Dialog* own) {
  const auto found = dialogs_.find(own);
  return found == dialogs_.end() ? own : found->second;
}

JournalDesktop::Handler& JournalDesktop::HandlerOf(platform::DialogHandler& own, int id) {
  handlers_.push_back(std::make_unique<Handler>(*this, own, id));
  return *handlers_.back();
}

}  // namespace test
