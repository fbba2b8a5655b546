#pragma once

#include <memory>

#include "platform/export.h"
#include "platform/handles.h"

// The host's own window, which each kind of desktop has its body for. Whoever makes it owns it, and
// what stands over it does not.

namespace host {

// A window that dialogs may stand over, such as the application's main window. Nothing is drawn in
// it.
class SKELDER_API TopLevelWindow {
 public:
  TopLevelWindow();
  TopLevelWindow(const TopLevelWindow&) = delete;
  TopLevelWindow& operator=(const TopLevelWindow&) = delete;
  ~TopLevelWindow();

  // Its handle, which never changes.
  [[nodiscard]] HWND Handle() const;

 private:
  struct Body;

  std::unique_ptr<Body> body_;
};

}  // namespace host
