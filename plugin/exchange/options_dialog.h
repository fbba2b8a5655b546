#pragma once

#include <exception>

#include "platform/dialog.h"

// What the options dialogs have in common: how they open and end, and what becomes of exceptions,
// which may not pass through the system's windows.
namespace orvane {

class OptionsDialog : public platform::DialogHandler {
 public:
  OptionsDialog(const OptionsDialog&) = delete;
  OptionsDialog& operator=(const OptionsDialog&) = delete;

  // Shows the dialog and waits for the user. Returns whether the options were confirmed; they are
  // stored then. A dialog that cannot be created counts as cancelled. Throws what Fill or Answer
  // has thrown, which ends the dialog.
  bool Show();

  void Initialize(platform::Dialog& dialog) final;
  void Command(platform::Dialog& dialog, int control) final;

 protected:
  // How the dialog ends.
  static constexpr int kCancelled = 0;
  static constexpr int kConfirmed = 1;

  // Dialog `dialog_id` of `module`, centred over `parent`.
  OptionsDialog(int dialog_id, HWND parent, HINSTANCE module)
      : dialog_id_(dialog_id), parent_(parent), module_(module) {}
  ~OptionsDialog() = default;

  HINSTANCE Module() const { return module_; }

 private:
  // Loads the options and fills the controls with them.
  virtual void Fill(platform::Dialog& dialog) = 0;

  // The user has used `control`.
  virtual void Answer(platform::Dialog& dialog, int control) = 0;

  void Fail(platform::Dialog& dialog) noexcept;

  int dialog_id_;
  HWND parent_;
  HINSTANCE module_;
  std::exception_ptr failure_;
};

}  // namespace orvane
