#include "desktops/win32/Ground.h"

#include <algorithm>

#include "desktops/win32/Handles.h"
#include "desktops/win32/WindowClasses.h"
#include "forms/Control.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

/// The free space around the scrolled part, and what one step of the scroll bar is worth, in twips.
constexpr int kGap = 60;
constexpr int kStep = 300;

bool StandsPinned(const Control& control) {
  return control.Pinned() && !control.Parent().ContainerControl();
}

SIZE SizeOf(HWND window) {
  RECT client;
  GetClientRect(window, &client);
  return {client.right, client.bottom};
}

}  // namespace

void Ground::Open(HWND dialog) {
  mDialog = dialog;
  mPane = CreateWindowExW(WS_EX_CONTROLPARENT, WindowClasses::kPane, L"",
                          WS_CHILD | WS_VISIBLE | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, 0, 0, 0, 0, dialog, nullptr,
                          ThisModule(), nullptr);
  mSubclass.emplace(mPane, &Ground::PaneProc, this);
}

void Ground::Abandon() {
  mIsComplete = false;
  mStanding.clear();
}

LRESULT CALLBACK Ground::PaneProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam, UINT_PTR, DWORD_PTR ground) {
  auto& self = *reinterpret_cast<Ground*>(ground);
  if (self.mIsComplete) {
    if (message == WM_VSCROLL) self.ScrollBy(SB_VERT, LOWORD(wParam));
    if (message == WM_HSCROLL) self.ScrollBy(SB_HORZ, LOWORD(wParam));
    // The area covers the dialog from the same corner on.
    if (message == WM_MOUSEMOVE || message == WM_LBUTTONDOWN)
      return SendMessageW(self.mDialog, message, wParam, lParam);
  }
  return Subclass::CallNext(window, message, wParam, lParam);
}

HWND Ground::HomeOf(const Control& control) const {
  return StandsPinned(control) ? mDialog : mPane;
}

int Ground::Pixels(int twips) const {
  return mForm.OwnerDesktop().ToPixels(twips);
}

RECT Ground::PlaceOf(const Control& control) const {
  const Rect& place = control.Place();
  // Edges are converted, not sizes, so that neighbours meet whatever the scale.
  RECT pixels = {Pixels(place.Left), Pixels(place.Top), Pixels(place.Right()), Pixels(place.Bottom())};
  if (StandsPinned(control)) {
    const SIZE missing = Missing();
    OffsetRect(&pixels, -static_cast<int>(std::min(missing.cx, pixels.left)), -static_cast<int>(missing.cy));
  } else if (!control.Parent().ContainerControl()) {
    OffsetRect(&pixels, -static_cast<int>(mOffset.x), -static_cast<int>(mOffset.y));
  }
  return pixels;
}

SIZE Ground::Missing() const {
  const Size client = mForm.ClientSize();
  const Size shown = mForm.ShownClientSize();
  return {Pixels(client.Width) - Pixels(shown.Width), Pixels(client.Height) - Pixels(shown.Height)};
}

int Ground::ExtraWidth() const {
  if (Missing().cy <= 0) return 0;
  const ScreenMetrics screen = mForm.OwnerDesktop().Metrics(mForm.Border());
  return std::clamp(Pixels(screen.WorkArea.Width - mForm.Width()), 0, GetSystemMetrics(SM_CXVSCROLL));
}

SIZE Ground::WindowSize() const {
  const Size shown = mForm.ShownClientSize();
  return {Pixels(shown.Width) + ExtraWidth(), Pixels(shown.Height)};
}

int Ground::PinnedTop() const {
  int top = mForm.ClientSize().Height;
  for (const Standing& standing : mStanding)
    if (StandsPinned(*standing.Control) && standing.Control->Visible())
      top = std::min(top, standing.Control->Top() - kGap);
  return Pixels(top);
}

SIZE Ground::BodySize() const {
  int bottom = PinnedTop();
  for (const Standing& standing : mStanding)
    if (!StandsPinned(*standing.Control) && standing.Control->Visible())
      bottom = std::max(bottom, Pixels(standing.Control->Place().Bottom() + kGap));
  return {Pixels(mForm.ClientSize().Width), bottom};
}

void Ground::Arrange() {
  if (!mIsComplete) return;
  const SIZE missing = Missing();
  const SIZE window = WindowSize();
  const bool scrollsDown = missing.cy > 0;
  const int height =
      scrollsDown ? std::max(0, PinnedTop() - static_cast<int>(missing.cy)) : static_cast<int>(window.cy);
  SetWindowPos(mPane, HWND_BOTTOM, 0, 0, window.cx, height, SWP_NOACTIVATE);
  SetBars({window.cx, height});
  ScrollTo(mOffset);
  for (const Standing& standing : mStanding) {
    if (!StandsPinned(*standing.Control)) continue;
    const RECT place = PlaceOf(*standing.Control);
    SetWindowPos(standing.Window, nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                 SWP_NOACTIVATE | SWP_NOZORDER);
  }
}

void Ground::SetBars(SIZE pane) {
  const SIZE body = BodySize();
  const bool scrollsDown = Missing().cy > 0;
  const LONG width = pane.cx - (scrollsDown ? GetSystemMetrics(SM_CXVSCROLL) : 0);
  const LONG height = pane.cy - (body.cx > width ? GetSystemMetrics(SM_CYHSCROLL) : 0);
  SetBar(SB_HORZ, static_cast<int>(body.cx), static_cast<int>(std::min(width, body.cx)));
  SetBar(SB_VERT, static_cast<int>(body.cy), static_cast<int>(scrollsDown ? height : body.cy));
}

void Ground::SetBar(int bar, int whole, int seen) {
  // A range of the size of the page hides the bar.
  SCROLLINFO info = {sizeof(info), SIF_RANGE | SIF_PAGE, 0, std::max(whole - 1, 0), static_cast<UINT>(seen), 0, 0};
  SetScrollInfo(mPane, bar, &info, TRUE);
}

void Ground::ScrollBy(int bar, UINT code) {
  SCROLLINFO info = {sizeof(info), SIF_ALL, 0, 0, 0, 0, 0};
  GetScrollInfo(mPane, bar, &info);
  int to = info.nPos;
  if (code == SB_LINEUP) to -= Pixels(kStep);
  if (code == SB_LINEDOWN) to += Pixels(kStep);
  if (code == SB_PAGEUP) to -= static_cast<int>(info.nPage);
  if (code == SB_PAGEDOWN) to += static_cast<int>(info.nPage);
  if (code == SB_THUMBTRACK || code == SB_THUMBPOSITION) to = info.nTrackPos;
  if (code == SB_TOP) to = info.nMin;
  if (code == SB_BOTTOM) to = info.nMax;
  ScrollTo(bar == SB_VERT ? POINT{mOffset.x, to} : POINT{to, mOffset.y});
}

void Ground::Wheel(int delta) {
  ScrollTo({mOffset.x, mOffset.y - MulDiv(delta, 3 * Pixels(kStep), WHEEL_DELTA)});
}

void Ground::ScrollTo(POINT offset) {
  const auto setBar = [this](int bar, LONG to) {
    SCROLLINFO info = {sizeof(info), SIF_POS, 0, 0, 0, static_cast<int>(to), 0};
    SetScrollInfo(mPane, bar, &info, TRUE);
    info.fMask = SIF_POS;
    GetScrollInfo(mPane, bar, &info);
    return static_cast<LONG>(info.nPos);
  };
  const POINT before = mOffset;
  mOffset = {setBar(SB_HORZ, offset.x), setBar(SB_VERT, offset.y)};
  if (mOffset.x == before.x && mOffset.y == before.y) return;
  ScrollWindowEx(mPane, static_cast<int>(before.x - mOffset.x), static_cast<int>(before.y - mOffset.y), nullptr,
                 nullptr, nullptr, nullptr, SW_SCROLLCHILDREN | SW_INVALIDATE | SW_ERASE);
}

void Ground::Reveal(HWND window) {
  if (!mIsComplete || !IsChild(mPane, window)) return;
  RECT place;
  GetWindowRect(window, &place);
  MapWindowPoints(nullptr, mPane, reinterpret_cast<POINT*>(&place), 2);
  const SIZE seen = SizeOf(mPane);
  const LONG gap = Pixels(kGap);
  const auto moved = [gap](LONG low, LONG high, LONG size) -> LONG {
    if (low < gap || high - low > size - 2 * gap) return low - gap;
    return high > size - gap ? high - size + gap : 0;
  };
  if (place.left >= 0 && place.top >= 0 && place.right <= seen.cx && place.bottom <= seen.cy) return;
  ScrollTo({mOffset.x + moved(place.left, place.right, seen.cx), mOffset.y + moved(place.top, place.bottom, seen.cy)});
}

}  // namespace orx::win32
