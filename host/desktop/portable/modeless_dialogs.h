#pragma once

#include <memory>
#include <vector>

#include "host/desktop/portable/open_dialog.h"
#include "host/desktop/portable/open_dialog_user.h"
#include "host/desktop/script_failure.h"
#include "platform/dialog.h"
#include "platform/dialog_template.h"

// The dialogs of a scripted desktop that are open beside the rest of the program. A destroyed one
// keeps its memory until the desktop goes, because a script or a handler may still be in the middle
// of using it; to both it has ended.

namespace host {

class ModelessDialogs {
 public:
  // Failures of messages are learned from `failure`, which outlives this object.
  explicit ModelessDialogs(const ScriptFailure& failure) : failure_(failure) {}
  ModelessDialogs(const ModelessDialogs&) = delete;
  ModelessDialogs& operator=(const ModelessDialogs&) = delete;

  // Opens dialog `dialog_id`, built from `dialog_template`, and lets `handler` fill it. `handler`
  // is called until the dialog is destroyed.
  platform::Dialog& Create(int dialog_id, const platform::DialogTemplate& dialog_template,
                           HWND parent, platform::DialogHandler& handler);

  // Nothing happens to a dialog that is not one of these, or destroyed already.
  void Show(const platform::Dialog& dialog);
  void Destroy(const platform::Dialog& dialog);

  // The dialog that is open and shown, the latest of those with that id; null when there is none.
  ScriptedDialog* FindShown(int dialog_id);

  // The open dialog with that window, or null.
  platform::Dialog* FindByWindow(HWND window);

  // Whether a dialog is shown that stands for itself, and so waits for the user, rather than being
  // a part of another window.
  bool AnyWaiting() const;

 private:
  struct OpenedDialog {
    OpenedDialog(int dialog_id, const platform::DialogTemplate& dialog_template, HWND parent,
                 platform::DialogHandler& handler, const ScriptFailure& failure)
        : dialog(dialog_template, parent, false),
          user_side(dialog_id, dialog, handler, failure),
          is_part((dialog_template.style & platform::kStyleChild) != 0) {}

    OpenDialog dialog;
    OpenDialogUser user_side;
    bool is_part;
    bool shown = false;
  };

  OpenedDialog* Find(const platform::Dialog& dialog);

  const ScriptFailure& failure_;
  std::vector<std::unique_ptr<OpenedDialog>> entries_;
};

}  // namespace host
