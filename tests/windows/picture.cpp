#include "tests/windows/picture.h"

#include <windows.h>
// Used by the next header.
#include <objidl.h>
// In this order.
#include <gdiplus.h>

#include <memory>
#include <type_traits>

namespace test {
namespace {

// The system's writer of PNG files.
constexpr CLSID kPngWriter = {
    0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

struct BitmapDeleter {
  void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};
using UniqueBitmap = std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter>;

// The picture library in use.
class PictureLibrary {
 public:
  PictureLibrary() {
    const Gdiplus::GdiplusStartupInput input;
    Gdiplus::GdiplusStartup(&token_, &input, nullptr);
  }
  PictureLibrary(const PictureLibrary&) = delete;
  PictureLibrary& operator=(const PictureLibrary&) = delete;
  ~PictureLibrary() { Gdiplus::GdiplusShutdown(token_); }

 private:
  ULONG_PTR token_ = 0;
};

void DrawInFront(HWND window) {
  SetWindowPos(window, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
  RedrawWindow(window, nullptr, nullptr,
               RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN | RDW_UPDATENOW);
  // What was drawn reaches the display when the thread next waits, for nothing here.
  constexpr DWORD kSettlingTime = 50;  // milliseconds
  MsgWaitForMultipleObjects(0, nullptr, FALSE, kSettlingTime, 0);
}

UniqueBitmap CopyOfDisplay(const RECT& area) {
  const int width = area.right - area.left;
  const int height = area.bottom - area.top;
  const HDC display = GetDC(nullptr);
  const HDC memory = CreateCompatibleDC(display);
  UniqueBitmap bitmap(CreateCompatibleBitmap(display, width, height));
  const HGDIOBJ before = SelectObject(memory, bitmap.get());
  if (BitBlt(memory, 0, 0, width, height, display, area.left, area.top, SRCCOPY) == 0) {
    bitmap.reset();
  }
  SelectObject(memory, before);
  DeleteDC(memory);
  ReleaseDC(nullptr, display);
  return bitmap;
}

}  // namespace

bool SavePicture(HWND window, const std::filesystem::path& path) {
  HideCaret(nullptr);  // of this thread: it stands in a letter
  DrawInFront(window);
  RECT area;
  if (GetWindowRect(window, &area) == 0) return false;
  const UniqueBitmap copy = CopyOfDisplay(area);
  if (copy == nullptr) return false;
  const PictureLibrary library;
  Gdiplus::Bitmap picture(copy.get(), nullptr);
  return picture.Save(path.c_str(), &kPngWriter, nullptr) == Gdiplus::Ok;
}

}  // namespace test
