#include "desktops/win32/WindowPicture.h"

#include <vector>

// The headers of the imaging library use min and max.
#include <algorithm>
using std::max;
using std::min;
#include <objidl.h>
// After objidl.h, which it needs.
#include <gdiplus.h>

#include "desktops/win32/Handles.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

constexpr CLSID kPngEncoder = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

class Imaging {
 public:
  Imaging() {
    const Gdiplus::GdiplusStartupInput input;
    mStarted = Gdiplus::GdiplusStartup(&mToken, &input, nullptr) == Gdiplus::Ok;
  }
  ~Imaging() {
    if (mStarted) Gdiplus::GdiplusShutdown(mToken);
  }
  Imaging(const Imaging&) = delete;
  Imaging& operator=(const Imaging&) = delete;

 private:
  ULONG_PTR mToken = 0;
  bool mStarted = false;
};

}  // namespace

bool SavePicture(HWND window, const std::string& pngPath) {
  if (!window || !IsWindowVisible(window)) return false;
  RECT client;
  GetClientRect(window, &client);
  // The window's own surface is complete, whatever covers it on the screen.
  RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  const WindowContext screen(window);
  const MemoryContext buffer(screen.Get(), client.right, client.bottom);
  if (!BitBlt(buffer.Get(), 0, 0, client.right, client.bottom, screen.Get(), 0, 0, SRCCOPY)) return false;
  const Imaging imaging;
  Gdiplus::Bitmap picture(buffer.Bitmap(), nullptr);
  return picture.Save(Widened(pngPath).c_str(), &kPngEncoder, nullptr) == Gdiplus::Ok;
}

}  // namespace orx::win32
