#pragma once

#include "platform/dialog.h"

// The dialog that stands open while the user picks markers: tells which one is asked for, and takes
// the wish to do something else.
namespace orvane {

class MarkerSelectionDialog final : private platform::DialogHandler {
 public:
  enum class Button { kNone, kBack, kSkip, kAbort };

  MarkerSelectionDialog() = default;
  MarkerSelectionDialog(const MarkerSelectionDialog&) = delete;
  MarkerSelectionDialog& operator=(const MarkerSelectionDialog&) = delete;

  // Opens it, from the resources of `module`, over `parent`. Returns false when it cannot be
  // created.
  [[nodiscard]] bool Open(HINSTANCE module, HWND parent);

  void Close() { dialog_.reset(); }

  // Asks for the marker of that description, and forgets the button that was pressed.
  // REQUIRES: the dialog is open.
  void Ask(const char* description, bool may_go_back, bool may_skip);

  // The button that was pressed since Ask. The first one counts, but Abort counts more.
  Button Pressed() const { return pressed_; }

 private:
  void Initialize(platform::Dialog& /*dialog*/) override {}
  void Command(platform::Dialog& dialog, int control) override;
  void Press(Button button);

  platform::ModelessDialog dialog_;
  Button pressed_ = Button::kNone;
};

}  // namespace orvane
