#include "forms/PictureBox.h"

#include <windows.h>

#include <windowsx.h>

#include <utility>

#include "desktops/win32/CanvasPainter.h"
#include "desktops/win32/Peers.h"
#include "desktops/win32/WindowClasses.h"

namespace orx::win32 {
namespace {

class PicturePeer final : public Peer {
 public:
  PicturePeer(PictureBox& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Colors || aspect == Aspect::Drawing || aspect == Aspect::Enabled)
      InvalidateRect(Window(), nullptr, FALSE);
    Peer::Mirror(aspect);
    if (aspect != Aspect::Place) return;
    // Drawings fill exactly the size that the control reports.
    const Size size = mControl.PixelSize();
    SetWindowPos(Window(), nullptr, 0, 0, size.Width, size.Height, SWP_NOACTIVATE | SWP_NOZORDER | SWP_NOMOVE);
  }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == WM_ERASEBKGND) return TRUE;
    if (mControl.TakesFocus() && IsInput(message)) {
      TakeInput(window, message, wParam, lParam);
      return 0;
    }
    if (message != WM_PAINT) return Peer::OnMessage(window, message, wParam, lParam);
    PAINTSTRUCT paint;
    const HDC screen = BeginPaint(window, &paint);
    Paint(screen);
    EndPaint(window, &paint);
    return 0;
  }

  static bool IsInput(UINT message) {
    return message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK || message == WM_LBUTTONUP ||
           message == WM_KEYDOWN || message == WM_CAPTURECHANGED;
  }

  void TakeInput(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    PictureBox& control = mControl;
    const Point at{GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
      SetCapture(window);
      mPressed = true;
      // Last, because the press may destroy the window.
      Report([&] { message == WM_LBUTTONDOWN ? control.UserMouseDown(at) : control.UserDoubleClick(at); });
    } else if (message == WM_KEYDOWN) {
      Report([&] { control.UserKeyDown(static_cast<int>(wParam)); });
    } else if (std::exchange(mPressed, false) && message == WM_LBUTTONUP) {
      ReleaseCapture();
      RECT all;
      GetClientRect(window, &all);
      // A release outside the box cancels the press.
      if (PtInRect(&all, {at.X, at.Y})) Report([&] { control.UserClick(); });
    }
  }

  void Paint(HDC screen) const {
    RECT all;
    GetClientRect(Window(), &all);
    const MemoryContext buffer(screen, all.right, all.bottom);
    FillWith(buffer.Get(), all, mControl.ShownBackColor());
    if (mControl.AutoRedraw()) PaintCanvas(buffer.Get(), mControl.Drawing());
    BitBlt(screen, 0, 0, all.right, all.bottom, buffer.Get(), 0, 0, SRCCOPY);
  }

  PictureBox& mControl;
  bool mPressed = false;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(PictureBox& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<PicturePeer>(control, dialog,
                                       MakePane(control.TakesFocus() ? WS_TABSTOP : 0, site, WindowClasses::kPicture));
}

}  // namespace orx::win32
