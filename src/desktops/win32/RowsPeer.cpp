#include "desktops/win32/RowsPeer.h"

#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "desktops/win32/Handles.h"
#include "desktops/win32/Text.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

/// In twips: what a row is higher than its text, and the gap before a text.
constexpr int kRowGap = 60;
constexpr int kTextGap = 45;

int RowHeight(HWND window, HFONT face) {
  const WindowContext context(window);
  const Selection selection(context.Get(), face);
  TEXTMETRICW metrics = {};
  GetTextMetricsW(context.Get(), &metrics);
  return static_cast<int>(metrics.tmHeight);
}

}  // namespace

RowsPeer::RowsPeer(Control& control, Dialog& dialog, HWND window) : Peer(control, dialog, window) {
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_DOUBLEBUFFER | LVS_EX_FULLROWSELECT);
  LVCOLUMNW column = {};
  Send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  // The height of the pictures that rows might have is the height of the rows.
  const int height = RowHeight(window, dialog.Face()) + Pixels(kRowGap);
  Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(ImageList_Create(1, height, ILC_COLOR, 1, 1)));
}

LRESULT RowsPeer::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
  return SendMessageW(Window(), message, wParam, lParam);
}

int RowsPeer::Pixels(int twips) const {
  return Subject().OwnerForm().OwnerDesktop().ToPixels(twips);
}

void RowsPeer::MirrorRows() {
  mWidest = 0;
  Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(Count()), LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
  InvalidateRect(Window(), nullptr, TRUE);
}

void RowsPeer::MirrorState(int position, UINT state, UINT mask) const {
  LVITEMW item = {};
  item.state = state;
  item.stateMask = mask;
  Send(LVM_SETITEMSTATE, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&item));
}

void RowsPeer::Reveal(int position) const {
  Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(position), FALSE);
}

void RowsPeer::FillWidth() const {
  RECT client;
  GetClientRect(Window(), &client);
  const int width = std::max(static_cast<int>(client.right), mWidest);
  if (Send(LVM_GETCOLUMNWIDTH, 0) != width) Send(LVM_SETCOLUMNWIDTH, 0, width);
}

LRESULT RowsPeer::OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      Press({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}, message == WM_LBUTTONDBLCLK);
      return 0;
    case WM_RBUTTONDOWN:
    case WM_RBUTTONDBLCLK:
      // The native list would select by it.
      return 0;
    case WM_KEYDOWN:
      if (GetKeyState(VK_CONTROL) < 0) return 0;
      if (ScrollsAcross() && (wParam == VK_LEFT || wParam == VK_RIGHT))
        return Send(WM_HSCROLL, wParam == VK_LEFT ? SB_LINELEFT : SB_LINERIGHT);
      KeyPressed(static_cast<int>(wParam), static_cast<int>(Send(LVM_GETCOUNTPERPAGE)));
      return 0;
    case WM_CHAR:
      if (!IS_HIGH_SURROGATE(wParam) && !IS_LOW_SURROGATE(wParam)) Typed(static_cast<char32_t>(wParam));
      return 0;
    case WM_PAINT: {
      const int known = mWidest;
      const LRESULT result = Peer::OnMessage(window, message, wParam, lParam);
      if (mWidest > known) FillWidth();
      return result;
    }
    case WM_SIZE: {
      const LRESULT result = Peer::OnMessage(window, message, wParam, lParam);
      FillWidth();
      return result;
    }
    default:
      return Peer::OnMessage(window, message, wParam, lParam);
  }
}

void RowsPeer::Press(POINT at, bool twice) {
  LVHITTESTINFO hit = {};
  hit.pt = at;
  const auto position = static_cast<int>(Send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
  if (position < 0 || position >= Count()) {
    FocusIsGranted();
    return;
  }
  Pressed(position, at, twice);
}

LRESULT RowsPeer::OnNotify(const NMHDR& notice) {
  if (Owner().IsRetired()) return 0;
  switch (notice.code) {
    case LVN_GETDISPINFOW:
      GiveText(reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(notice)).item);
      return 0;
    case NM_CUSTOMDRAW:
      return Draw(reinterpret_cast<const NMLVCUSTOMDRAW&>(notice));
    case LVN_ITEMCHANGED: {
      const auto& change = reinterpret_cast<const NMLISTVIEW&>(notice);
      const bool isTold = ((change.uNewState ^ change.uOldState) & LVIS_SELECTED) != 0;
      if (isTold && change.iItem >= 0 && change.iItem < Count())
        NativeSelected(change.iItem, (change.uNewState & LVIS_SELECTED) != 0);
      return 0;
    }
    default:
      return 0;
  }
}

void RowsPeer::GiveText(LVITEMW& item) const {
  if (!(item.mask & LVIF_TEXT) || item.cchTextMax <= 0) return;
  const std::wstring text = WideTextAt(item.iItem);
  lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
}

std::wstring RowsPeer::WideTextAt(int position) const {
  return position < 0 || position >= Count() ? std::wstring() : Widened(TextAt(position));
}

LRESULT RowsPeer::Draw(const NMLVCUSTOMDRAW& draw) {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const auto position = static_cast<int>(draw.nmcd.dwItemSpec);
  if (position < Count()) DrawRow(draw.nmcd.hdc, position);
  return CDRF_SKIPDEFAULT;
}

void RowsPeer::DrawRow(HDC context, int position) {
  RECT place = {LVIR_BOUNDS, 0, 0, 0};
  Send(LVM_GETITEMRECT, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&place));
  const bool isFocused = GetFocus() == Window();
  const bool isSelected = IsSelected(position);
  int ground = COLOR_WINDOW;
  int ink = IsWindowEnabled(Window()) ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT;
  if (isSelected) {
    ground = isFocused ? COLOR_HIGHLIGHT : COLOR_BTNFACE;
    ink = isFocused ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT;
  }
  FillRect(context, &place, GetSysColorBrush(ground));
  const int gap = Pixels(kTextGap);
  RECT text = place;
  text.left += IndentOf(position) + gap;
  DrawMark(context, place, position, ink);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(ink));
  const std::wstring shown = WideTextAt(position);
  DrawTextW(context, shown.c_str(), static_cast<int>(shown.size()), &text,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  if (isFocused && position == FocusedPosition()) DrawFocusRect(context, &place);
  if (!ScrollsAcross()) return;
  SIZE size = {};
  GetTextExtentPoint32W(context, shown.c_str(), static_cast<int>(shown.size()), &size);
  mWidest = std::max(mWidest, static_cast<int>(size.cx) + 2 * gap);
}

}  // namespace orx::win32
