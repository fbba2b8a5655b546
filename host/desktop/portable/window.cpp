#include "host/desktop/portable/window.h"

#include "host/desktop/top_level_window.h"
#include "sdk/skelderutil/window.h"

namespace host {

struct TopLevelWindow::Body {
  HWND__ window;
};

TopLevelWindow::TopLevelWindow() : body_(std::make_unique<Body>()) {}
TopLevelWindow::~TopLevelWindow() = default;

HWND TopLevelWindow::Handle() const { return &body_->window; }

}  // namespace host

void CenterWindow(HWND window, HWND over) {
  if (window != nullptr) window->centered_over = over;
}
