#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "host/desktop/portable/open_dialog.h"
#include "platform/desktop.h"
#include "platform/dialog_template.h"
#include "platform/export.h"

// A desktop for a person who sits somewhere else: whoever shows it to him looks at what stands on
// it, and brings what he does. The plug-in waits in its call meanwhile, as it does for a person in
// front of real windows.

namespace host {

// Who brings what the person does.
class LivePerson {
 public:
  // Lets the person do one thing, if any, by the operations of the desktop. Waits for it when he is
  // `awaited`.
  virtual void Act(bool awaited) = 0;

 protected:
  ~LivePerson() = default;
};

// What stands on the desktop has a number, which nothing else gets again.
struct LiveDialog {
  LiveDialog(int its_number, int its_id, platform::DialogTemplate its_template, HWND parent,
             platform::DialogHandler& its_handler, bool is_modal)
      : number(its_number),
        id(its_id),
        made_of(std::move(its_template)),
        handler(its_handler),
        modal(is_modal),
        dialog(made_of, parent, is_modal) {}

  int number;
  int id;  // the resource that it was built from
  platform::DialogTemplate made_of;
  platform::DialogHandler& handler;
  bool modal;
  bool shown = false;
  OpenDialog dialog;  // its controls stand in the order of the template's
};

struct LiveMessage {
  int number = 0;
  std::string text;
  std::string caption;
  platform::MessageBoxStyle style = platform::MessageBoxStyle::kOk;
};

// A choice of files, or of a folder.
struct LiveChoice {
  int number = 0;
  std::string title;
  const platform::FileDialog* files = nullptr;  // null for a folder
};

class SKELDER_API LiveDesktop final : private platform::Desktop {
 public:
  // In use from now on, and until it is destroyed; then the one that was in use before is again.
  // `person` outlives it.
  // REQUIRES: desktops are destroyed in reverse order.
  explicit LiveDesktop(LivePerson& person);
  LiveDesktop(const LiveDesktop&) = delete;
  LiveDesktop& operator=(const LiveDesktop&) = delete;
  ~LiveDesktop();

  // The dialogs that are open and shown, the latest last.
  [[nodiscard]] std::vector<LiveDialog*> Dialogs() const;
  // What is asked over them, or null.
  [[nodiscard]] const LiveMessage* Message() const { return message_ ? &*message_ : nullptr; }
  [[nodiscard]] const LiveChoice* Choice() const { return choice_ ? &*choice_ : nullptr; }

  // Why nothing beneath what is modal can be used, as a sentence; empty when nothing is.
  [[nodiscard]] std::string WhyHeld() const;

  // What the person does. Each returns why that cannot be done, as a sentence, and an empty text
  // when it was done; dialogs may have come and gone then.

  // Presses a button, or Esc (platform::kCloseControl); clicks a radio button, or a check box,
  // which changes its state.
  [[nodiscard]] std::string Use(int dialog, int control);
  [[nodiscard]] std::string Type(int dialog, int control, const std::string& text);
  [[nodiscard]] std::string Answer(int message, platform::MessageBoxResult button);
  // None cancels. Of files he agrees that one that exists is replaced.
  [[nodiscard]] std::string Choose(int choice, const std::vector<std::string>& paths);

  // Gives back the memory of dialogs that have ended.
  // REQUIRES: no call of the plug-in is under way.
  void ForgetEnded();

 private:
  // Where a choice goes.
  struct Chosen {
    char* buffer;
    std::size_t size;
    std::size_t* name_offset;  // null for a folder
    bool is_chosen = false;
  };

  int ShowMessage(const char* text, const char* caption, platform::MessageBoxStyle style) override;
  int RunDialog(HINSTANCE module, int dialog_id, HWND parent,
                platform::DialogHandler& handler) override;
  platform::Dialog* CreateModeless(HINSTANCE module, int dialog_id, HWND parent,
                                   platform::DialogHandler& handler) override;
  void ShowModeless(platform::Dialog& dialog) override;
  void DestroyModeless(platform::Dialog& dialog) override;
  platform::Dialog* FindModeless(HWND window) override;
  bool ProcessPendingMessages(bool awaited) override;
  bool ChooseFiles(const platform::FileDialog& dialog, char* buffer, std::size_t size,
                   std::size_t& name_offset) override;
  bool ChooseFolder(HWND owner, const char* title, char* buffer, std::size_t size) override;

  LiveDialog* Open(HINSTANCE module, int dialog_id, HWND parent, platform::DialogHandler& handler,
                   bool modal);
  // The open dialog, or null.
  [[nodiscard]] LiveDialog* Find(const platform::Dialog& dialog) const;
  // The open dialog when the person can use it now; else null, and `refusal` says why.
  [[nodiscard]] LiveDialog* Usable(int number, std::string& refusal) const;
  [[nodiscard]] const LiveDialog* TopModal() const;
  bool AwaitChoice(LiveChoice choice, Chosen chosen);

  platform::Desktop* previous_ = platform::CurrentDesktop();
  LivePerson& person_;
  std::vector<std::unique_ptr<LiveDialog>> dialogs_;
  std::optional<LiveMessage> message_;
  int answer_ = platform::kMessageBoxFailed;
  std::optional<LiveChoice> choice_;
  Chosen* chosen_ = nullptr;
  int last_number_ = 0;
};

}  // namespace host
