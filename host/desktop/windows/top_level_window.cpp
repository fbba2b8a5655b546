#include "host/desktop/top_level_window.h"

#include <windows.h>

#include "host/desktop/windows/watchdog.h"

namespace host {
namespace {

constexpr char kClass[] = "SkelderWindow";

// Large enough for any of the plug-in's dialogs to stand over.
constexpr int kWidth = 800;
constexpr int kHeight = 600;

HINSTANCE Program() { return GetModuleHandleA(nullptr); }

void RegisterOnce() {
  static const ATOM registered = [] {
    WNDCLASSA window_class{};
    window_class.lpfnWndProc = DefWindowProcA;
    window_class.hInstance = Program();
    window_class.hCursor = LoadCursorA(nullptr, IDC_ARROW);
    // NOLINTNEXTLINE(performance-no-int-to-ptr): the system's own way to name a colour
    window_class.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_APPWORKSPACE + 1);
    window_class.lpszClassName = kClass;
    return RegisterClassA(&window_class);
  }();
  static_cast<void>(registered);
}

HWND Create() {
  WatchWindows();
  RegisterOnce();
  HWND window =
      CreateWindowExA(0, kClass, "Skelder", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, CW_USEDEFAULT,
                      CW_USEDEFAULT, kWidth, kHeight, nullptr, nullptr, Program(), nullptr);
  ShowWindow(window, SW_SHOWNOACTIVATE);
  return window;
}

}  // namespace

// Most applications of tests are never asked for their window, so it is made when it is.
struct TopLevelWindow::Body {
  Body() = default;
  Body(const Body&) = delete;
  Body& operator=(const Body&) = delete;
  ~Body() {
    if (window != nullptr) DestroyWindow(window);
  }

  HWND window = nullptr;
};

TopLevelWindow::TopLevelWindow() : body_(std::make_unique<Body>()) {}
TopLevelWindow::~TopLevelWindow() = default;

HWND TopLevelWindow::Handle() const {
  if (body_->window == nullptr) body_->window = Create();
  return body_->window;
}

}  // namespace host
