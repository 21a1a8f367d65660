#include "desktops/win32/ContentPane.h"

#include <algorithm>
#include <utility>

#include "desktops/win32/GuestScope.h"
#include "desktops/win32/Handles.h"
#include "desktops/win32/Peer.h"
#include "desktops/win32/WindowClasses.h"
#include "forms/Form.h"
#include "forms/Pixels.h"

namespace orx::win32 {
namespace {

/// What one notch of the mouse wheel is worth.
constexpr int kStepsPerNotch = 3;

}  // namespace

void ContentPane::Open(HWND dialog) {
  mDialog = dialog;
  const DWORD scrollBar = mForm.RightToLeft() ? WS_EX_LEFTSCROLLBAR : 0;
  mPane = Made(CreateWindowExW(WS_EX_CONTROLPARENT | scrollBar, WindowClasses::kPane, L"",
                               WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0, 0, 0, dialog, nullptr,
                               ThisModule(), nullptr));
  mSubclass.emplace(mPane, &ContentPane::PaneProc, this);
}

LRESULT CALLBACK ContentPane::PaneProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR,
                                       DWORD_PTR pane) {
  const GuestScope guest;
  auto& self = *reinterpret_cast<ContentPane*>(pane);
  // Once the window is gone, the platform no longer finds what it has kept for the subclass.
  if (message == WM_NCDESTROY) self.mSubclass.reset();
  if (self.mIsComplete) {
    if (message == WM_VSCROLL) self.ScrollBy(SB_VERT, LOWORD(wParam));
    if (message == WM_HSCROLL) self.ScrollBy(SB_HORZ, LOWORD(wParam));
    // The pane covers the dialog from the same corner, so places are the same.
    if (message == WM_MOUSEMOVE || message == WM_LBUTTONDOWN)
      return SendMessageW(self.mDialog, message, wParam, lParam);
  }
  return Subclass::CallNext(window, message, wParam, lParam);
}

HWND ContentPane::HomeOf(const Control& control) const {
  return StandsPinned(control) ? mDialog : mPane;
}

Arrangement ContentPane::Current() const {
  return orx::Arrange(mForm, {GetSystemMetrics(SM_CXVSCROLL), GetSystemMetrics(SM_CYHSCROLL)});
}

RECT ContentPane::PlaceOf(const Control& control) const {
  const Rect place = PixelPlace(control, mArrangement);
  RECT native = {place.Left, place.Top, place.Right(), place.Bottom()};
  // There is no window of the whole body: the pane scrolls its children.
  if (!StandsPinned(control) && !control.Parent().ContainerControl()) OffsetRect(&native, -mPosition.X, -mPosition.Y);
  return native;
}

SIZE ContentPane::WindowSize() const {
  const Size window = Current().Window;
  return {window.Width, window.Height};
}

void ContentPane::Arrange() {
  if (!mIsComplete) return;
  mArrangement = Current();
  SetWindowPos(mPane, HWND_BOTTOM, 0, 0, mArrangement.Pane.Width, mArrangement.Pane.Height, SWP_NOACTIVATE);
  ShowRange(SB_HORZ, mArrangement.Across);
  ShowRange(SB_VERT, mArrangement.Down);
  ScrollTo(mPosition);
  for (const Control* const control : mForm.Children()) {
    const Peer* const peer = PeerOf(*control);
    if (!peer || !StandsPinned(*control)) continue;
    const RECT place = PlaceOf(*control);
    SetWindowPos(peer->Window(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOACTIVATE | SWP_NOZORDER);
  }
}

void ContentPane::ShowRange(int bar, const ScrollRange& range) const {
  // The platform hides the bar when all is seen.
  SCROLLINFO info = {
      sizeof(info), SIF_RANGE | SIF_PAGE, 0, std::max(range.Whole - 1, 0), static_cast<UINT>(range.Seen), 0, 0};
  SetScrollInfo(mPane, bar, &info, TRUE);
}

int ContentPane::StepPixels() const {
  return TwipsToPixels(kScrollStep, mArrangement.Scale);
}

void ContentPane::ScrollBy(int bar, UINT code) {
  SCROLLINFO info = {sizeof(info), SIF_ALL, 0, 0, 0, 0, 0};
  GetScrollInfo(mPane, bar, &info);
  int to = info.nPos;
  if (code == SB_LINEUP) to -= StepPixels();
  if (code == SB_LINEDOWN) to += StepPixels();
  if (code == SB_PAGEUP) to -= static_cast<int>(info.nPage);
  if (code == SB_PAGEDOWN) to += static_cast<int>(info.nPage);
  if (code == SB_THUMBTRACK || code == SB_THUMBPOSITION) to = info.nTrackPos;
  if (code == SB_TOP) to = info.nMin;
  if (code == SB_BOTTOM) to = info.nMax;
  ScrollTo(bar == SB_VERT ? Point{mPosition.X, to} : Point{to, mPosition.Y});
}

void ContentPane::Wheel(int delta) {
  ScrollTo({mPosition.X, mPosition.Y - MulDiv(delta, kStepsPerNotch * StepPixels(), WHEEL_DELTA)});
}

void ContentPane::ScrollTo(Point position) {
  const Point before = std::exchange(mPosition, mArrangement.Clamped(position));
  const auto show = [this](int bar, int at) {
    SCROLLINFO info = {sizeof(info), SIF_POS, 0, 0, 0, at, 0};
    SetScrollInfo(mPane, bar, &info, TRUE);
  };
  show(SB_HORZ, mPosition.X);
  show(SB_VERT, mPosition.Y);
  if (mPosition == before) return;
  ScrollWindowEx(mPane, before.X - mPosition.X, before.Y - mPosition.Y, nullptr, nullptr, nullptr, nullptr,
                 SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

void ContentPane::Reveal(HWND window) {
  if (!mIsComplete || !IsChild(mPane, window)) return;
  RECT place;
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, mPane, reinterpret_cast<POINT*>(&place), 2);
  const Rect seen{static_cast<int>(place.left), static_cast<int>(place.top), static_cast<int>(place.right - place.left),
                  static_cast<int>(place.bottom - place.top)};
  ScrollTo(mArrangement.Revealing(seen, mPosition));
}

}  // namespace orx::win32
