#include "tests/windows/window_layout.h"

#include <windows.h>

#include <array>

namespace test {
namespace {

// What a button needs beside its text, in pixels: the box or circle and the distance to it, or the
// frame; the ends of a group box's line.
constexpr int kMarkWidth = 13 + 5;
constexpr int kFrameWidth = 2 * 6;
constexpr int kGroupLineWidth = 2 * 9;

struct Control {
  int id = 0;
  std::string text;
  std::string window_class;
  LONG style = 0;
  RECT area{};  // in the dialog

  bool IsButton() const { return window_class == "Button"; }
  LONG ButtonKind() const { return style & BS_TYPEMASK; }
  bool IsGroupBox() const { return IsButton() && ButtonKind() == BS_GROUPBOX; }
  bool IsLabel() const { return window_class == "Static" && (style & SS_TYPEMASK) != SS_BITMAP; }
  std::string Name() const { return std::to_string(id) + " \"" + text + "\""; }
};

Control ControlOf(HWND dialog, HWND window) {
  Control control;
  std::array<char, 256> buffer{};
  control.id = GetDlgCtrlID(window);
  GetWindowTextA(window, buffer.data(), static_cast<int>(buffer.size()));
  control.text = buffer.data();
  GetClassNameA(window, buffer.data(), static_cast<int>(buffer.size()));
  control.window_class = buffer.data();
  control.style = GetWindowLongA(window, GWL_STYLE);
  GetWindowRect(window, &control.area);
  MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&control.area), 2);
  return control;
}

std::vector<Control> ControlsOf(HWND dialog) {
  std::vector<Control> controls;
  for (HWND window = GetWindow(dialog, GW_CHILD); window != nullptr;
       window = GetWindow(window, GW_HWNDNEXT)) {
    controls.push_back(ControlOf(dialog, window));
  }
  return controls;
}

bool Contains(const RECT& outer, const RECT& inner) {
  return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
         inner.bottom <= outer.bottom;
}

bool Overlap(const RECT& a, const RECT& b) {
  RECT common;
  return IntersectRect(&common, &a, &b) != 0;
}

// May a control lie over the other? Only in a group box, whole.
bool MayOverlap(const Control& a, const Control& b) {
  return (a.IsGroupBox() && Contains(a.area, b.area)) ||
         (b.IsGroupBox() && Contains(b.area, a.area));
}

// The size of the text in the dialog's font, in pixels; lines break at `width`.
SIZE TextSize(HWND dialog, const std::string& text, int width, UINT format) {
  const HDC context = GetDC(dialog);
  const auto font = reinterpret_cast<HFONT>(SendMessageA(dialog, WM_GETFONT, 0, 0));
  const HGDIOBJ before = SelectObject(context, font);
  RECT area{0, 0, width, 0};
  DrawTextA(context, text.c_str(), -1, &area, DT_CALCRECT | format);
  SelectObject(context, before);
  ReleaseDC(dialog, context);
  return {area.right, area.bottom};
}

SIZE LabelSize(HWND dialog, const Control& label) {
  return TextSize(dialog, label.text, label.area.right - label.area.left, DT_WORDBREAK);
}

SIZE ButtonSize(HWND dialog, const Control& button) {
  SIZE size = TextSize(dialog, button.text, 0, DT_SINGLELINE);
  switch (button.ButtonKind()) {
    case BS_GROUPBOX:
      size.cx += kGroupLineWidth;
      break;
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON:
      size.cx += kFrameWidth;
      break;
    default:
      size.cx += kMarkWidth;
      break;
  }
  return size;
}

bool IsCutOff(HWND dialog, const Control& control) {
  if (!control.IsButton() && !control.IsLabel()) return false;
  const SIZE needed = control.IsButton() ? ButtonSize(dialog, control) : LabelSize(dialog, control);
  return needed.cx > control.area.right - control.area.left ||
         needed.cy > control.area.bottom - control.area.top;
}

}  // namespace

int DefaultButton(HWND dialog) {
  const auto answer = static_cast<DWORD>(SendMessageA(dialog, DM_GETDEFID, 0, 0));
  // A dialog without one says that it is the control of number 1.
  const int id = HIWORD(answer) == DC_HASDEFID ? LOWORD(answer) : 0;
  return GetDlgItem(dialog, id) != nullptr ? id : 0;
}

std::vector<int> TabOrder(HWND dialog) {
  std::vector<int> order;
  const HWND first = GetNextDlgTabItem(dialog, nullptr, FALSE);
  for (HWND window = first; window != nullptr;) {
    order.push_back(GetDlgCtrlID(window));
    window = GetNextDlgTabItem(dialog, window, FALSE);
    if (window == first) break;
  }
  return order;
}

std::vector<int> ArrowOrder(HWND dialog, int control) {
  std::vector<int> order;
  const HWND first = GetDlgItem(dialog, control);
  for (HWND window = first; window != nullptr;) {
    order.push_back(GetDlgCtrlID(window));
    window = GetNextDlgGroupItem(dialog, window, FALSE);
    if (window == first) break;
  }
  return order;
}

int Focus(HWND dialog) {
  const HWND focus = GetFocus();
  return focus != nullptr && IsChild(dialog, focus) != 0 ? GetDlgCtrlID(focus) : 0;
}

bool HasFrame(HWND dialog, int control) {
  RECT whole{};
  RECT inside{};
  const HWND window = GetDlgItem(dialog, control);
  return GetWindowRect(window, &whole) != 0 && GetClientRect(window, &inside) != 0 &&
         inside.right < whole.right - whole.left && inside.bottom < whole.bottom - whole.top;
}

std::vector<std::string> LayoutFaults(HWND dialog) {
  std::vector<std::string> faults;
  RECT inside;
  GetClientRect(dialog, &inside);
  const std::vector<Control> controls = ControlsOf(dialog);
  if (controls.empty()) faults.emplace_back("There are no controls");
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const Control& control = controls[i];
    if (!Contains(inside, control.area)) faults.push_back(control.Name() + " sticks out");
    if (IsCutOff(dialog, control)) faults.push_back(control.Name() + " is cut off");
    for (std::size_t j = 0; j < i; ++j) {
      if (Overlap(control.area, controls[j].area) && !MayOverlap(control, controls[j])) {
        faults.push_back(control.Name() + " lies over " + controls[j].Name());
      }
    }
  }
  return faults;
}

HWND OwnerOfActiveWindow() { return GetWindow(GetActiveWindow(), GW_OWNER); }

void SendCommand(HWND dialog, int control) {
  SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(control, BN_CLICKED), 0);
}

}  // namespace test
