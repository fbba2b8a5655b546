#include "host/desktop/windows/center_window.h"

#include <windows.h>

#include <algorithm>

#include "sdk/skelderutil/window.h"

namespace {

// The property that remembers what a window was centred over.
constexpr char kCenteredOver[] = "SkelderCenteredOver";

long Width(const RECT& area) { return area.right - area.left; }
long Height(const RECT& area) { return area.bottom - area.top; }

// The part of the screen that windows may cover, where `window` is.
RECT WorkArea(HWND window) {
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  GetMonitorInfoA(MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST), &monitor);
  return monitor.rcWork;
}

// Where something of `length` begins that is centred on what lies between `begin` and `end`, kept
// between `first` and `last`. What is too long begins at `first`.
long Centered(long length, long begin, long end, long first, long last) {
  return std::max(std::min(begin + (end - begin - length) / 2, last - length), first);
}

}  // namespace

namespace host {

HWND WindowCenteredOver(HWND window) { return static_cast<HWND>(GetPropA(window, kCenteredOver)); }

}  // namespace host

void CenterWindow(HWND window, HWND over) {
  if (window == nullptr) return;
  SetPropA(window, kCenteredOver, over);
  RECT own{};
  RECT other{};
  if (GetWindowRect(window, &own) == 0) return;
  const RECT work = WorkArea(over == nullptr ? window : over);
  if (over == nullptr || GetWindowRect(over, &other) == 0) other = work;
  const long x = Centered(Width(own), other.left, other.right, work.left, work.right);
  const long y = Centered(Height(own), other.top, other.bottom, work.top, work.bottom);
  SetWindowPos(window, nullptr, static_cast<int>(x), static_cast<int>(y), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
