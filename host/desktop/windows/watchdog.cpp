#include "host/desktop/windows/watchdog.h"

#include <windows.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <thread>

#include "host/desktop/windows/window_text.h"
#include "platform/windows/text.h"

namespace host {
namespace {

using std::chrono::steady_clock;

constexpr int kUsualSeconds = 30;
constexpr auto kInterval = std::chrono::milliseconds(250);

std::chrono::seconds Patience() {
  const char* const wish = std::getenv("SKELDER_WATCHDOG_SECONDS");
  const int seconds = wish == nullptr ? 0 : std::atoi(wish);
  return std::chrono::seconds(seconds > 0 ? seconds : kUsualSeconds);
}

// The text that the system keeps for a window, got without asking the window: its thread may be
// stuck.
std::string KeptText(HWND window) {
  constexpr int kLongest = 1024;
  std::array<wchar_t, kLongest> text{};
  const int length = InternalGetWindowText(window, text.data(), kLongest);
  return platform::Utf8FromWide(std::wstring(text.data(), static_cast<std::size_t>(length)));
}

BOOL CALLBACK PrintControl(HWND control, LPARAM /*parameter*/) {
  const std::string text = KeptText(control);
  if (!text.empty()) std::fprintf(stderr, "  %s\n", text.c_str());
  return TRUE;
}

[[noreturn]] void GiveUp(HWND dialog, std::chrono::seconds patience) {
  std::fprintf(stderr, "Nobody has answered the dialog \"%s\" for %d seconds. It says:\n",
               KeptText(dialog).c_str(), static_cast<int>(patience.count()));
  EnumChildWindows(dialog, PrintControl, 0);
  std::fflush(stderr);
  TerminateProcess(GetCurrentProcess(), kWatchdogStatus);
  std::abort();
}

// The dialogs that are open, and since when.
using OpenDialogs = std::map<HWND, steady_clock::time_point>;

struct Sight {
  const OpenDialogs& before;
  OpenDialogs now{};
};

BOOL CALLBACK See(HWND window, LPARAM parameter) {
  // NOLINTNEXTLINE(performance-no-int-to-ptr): made below
  auto& sight = *reinterpret_cast<Sight*>(parameter);
  if (IsWindowVisible(window) == 0 || !IsDialogWindow(window)) return TRUE;
  const auto known = sight.before.find(window);
  sight.now[window] = known == sight.before.end() ? steady_clock::now() : known->second;
  return TRUE;
}

void Watch(DWORD thread) {
  SetThreadDesktop(GetThreadDesktop(thread));
  const auto patience = Patience();
  for (OpenDialogs open;; std::this_thread::sleep_for(kInterval)) {
    Sight sight{open};
    EnumThreadWindows(thread, See, reinterpret_cast<LPARAM>(&sight));
    open = std::move(sight.now);
    for (const auto& [dialog, since] : open) {
      if (steady_clock::now() - since > patience) GiveUp(dialog, patience);
    }
  }
}

}  // namespace

void WatchWindows() {
  static const bool watches = [] {
    std::thread(Watch, GetCurrentThreadId()).detach();
    return true;
  }();
  static_cast<void>(watches);
}

}  // namespace host
