#include "host/desktop/window.h"

#include "sdk/skelderutil/window.h"

void CenterWindow(HWND window, HWND over) {
  if (window != nullptr) window->centred_over = over;
}
