#include "desktops/win32/RowsPeer.h"

#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>

#include "desktops/win32/Handles.h"
#include "desktops/win32/Text.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

int TextHeight(HWND window, HFONT face) {
  const WindowContext context(window);
  const Selection selection(context.Get(), face);
  TEXTMETRICW metrics = {};
  GetTextMetricsW(context.Get(), &metrics);
  return static_cast<int>(metrics.tmHeight);
}

}  // namespace

RowsPeer::RowsPeer(Control& control, RowList& rows, Dialog& dialog, HWND window)
    : Peer(control, dialog, window), mRows(rows), mMeasures(dialog.Owner().OwnerDesktop().Scale()) {
  // The buffer knows nothing of mirroring: it would show even the letters mirrored.
  const DWORD buffered = dialog.Owner().RightToLeft() ? 0 : LVS_EX_DOUBLEBUFFER;
  Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, static_cast<LPARAM>(buffered | LVS_EX_FULLROWSELECT));
  LVCOLUMNW column = {};
  Send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
  // The rows are as high as the pictures that they might have.
  const int height = mMeasures.Height(TextHeight(window, dialog.Face()));
  Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(ImageList_Create(1, height, ILC_COLOR, 1, 1)));
}

LRESULT RowsPeer::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
  return SendMessageW(Window(), message, wParam, lParam);
}

void RowsPeer::MirrorRows() {
  mWidest = 0;
  Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(mRows.ShownCount()), LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
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
      // The native list would select the row.
      return 0;
    case WM_KEYDOWN:
      if (GetKeyState(VK_CONTROL) < 0) return 0;
      if (mRows.ScrollsAcross() && (wParam == VK_LEFT || wParam == VK_RIGHT))
        return Send(WM_HSCROLL, wParam == VK_LEFT ? SB_LINELEFT : SB_LINERIGHT);
      PressKey(static_cast<int>(wParam));
      return 0;
    case WM_CHAR:
      Type(static_cast<wchar_t>(wParam));
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

void RowsPeer::Press(POINT at, bool isSecond) {
  LVHITTESTINFO hit = {};
  hit.pt = at;
  const auto position = static_cast<int>(Send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
  if (position < 0 || position >= mRows.ShownCount()) {
    FocusIsGranted();
    return;
  }
  // Each row begins at the left edge of the view: only a list without marks scrolls across.
  const RowPress press{position, static_cast<int>(at.x), isSecond};
  Report([&rows = mRows, press] { rows.UserPress(press); });
}

void RowsPeer::PressKey(int virtualKey) {
  int code = virtualKey;
  if (virtualKey == VK_OEM_PLUS) code = kKeyCodePlus;
  if (virtualKey == VK_OEM_MINUS) code = kKeyCodeMinus;
  mRows.PageRows(static_cast<int>(Send(LVM_GETCOUNTPERPAGE)));
  Report([&rows = mRows, code] { rows.UserKeyDown(code); });
}

void RowsPeer::Type(wchar_t unit) {
  if (IS_HIGH_SURROGATE(unit) || IS_LOW_SURROGATE(unit)) return;
  Report([&rows = mRows, unit] { rows.UserCharacter(static_cast<char32_t>(unit)); });
}

void RowsPeer::NativeSelected(int position, bool isSelected) {
  Report([&rows = mRows, position, isSelected] { rows.UserSelect(position, isSelected); });
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
      if (isTold && change.iItem >= 0 && change.iItem < mRows.ShownCount())
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
  return position < 0 || position >= mRows.ShownCount() ? std::wstring() : Widened(mRows.ShownText(position));
}

LRESULT RowsPeer::Draw(const NMLVCUSTOMDRAW& draw) {
  if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
  if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
  const auto position = static_cast<int>(draw.nmcd.dwItemSpec);
  if (position < mRows.ShownCount()) DrawRow(draw.nmcd.hdc, position);
  return CDRF_SKIPDEFAULT;
}

void RowsPeer::DrawRow(HDC context, int position) {
  RECT place = {LVIR_BOUNDS, 0, 0, 0};
  Send(LVM_GETITEMRECT, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&place));
  const bool isFocused = GetFocus() == Window();
  const bool isSelected = mRows.IsSelectedAt(position);
  int ground = COLOR_WINDOW;
  int ink = IsWindowEnabled(Window()) ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT;
  if (isSelected) {
    ground = isFocused ? COLOR_HIGHLIGHT : COLOR_BTNFACE;
    ink = isFocused ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT;
  }
  FillRect(context, &place, GetSysColorBrush(ground));
  const int gap = mMeasures.TextGap();
  RECT text = place;
  text.left += mMeasures.Indent(mRows.LevelsAt(position)) + gap;
  DrawMark(context, place, position, ink);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(ink));
  const std::wstring shown = WideTextAt(position);
  DrawTextW(context, shown.c_str(), static_cast<int>(shown.size()), &text,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
  if (isFocused && position == mRows.FocusPosition()) DrawFocusRect(context, &place);
  if (!mRows.ScrollsAcross()) return;
  SIZE size = {};
  GetTextExtentPoint32W(context, shown.c_str(), static_cast<int>(shown.size()), &size);
  mWidest = std::max(mWidest, static_cast<int>(size.cx) + 2 * gap);
}

/// A square with a minus, and while the row is folded with a plus.
void RowsPeer::DrawMark(HDC context, const RECT& place, int position, int ink) const {
  const FoldMark mark = mRows.MarkAt(position);
  if (mark == FoldMark::None) return;
  const double scale = Owner().Owner().OwnerDesktop().Scale();
  const int half = TwipsToPixels(4 * kTwipsPerPixel, scale);
  const int thick = std::max(1, TwipsToPixels(kTwipsPerPixel, scale));
  const PixelSpan span = mMeasures.MarkAt(mRows.LevelsAt(position));
  const int x = span.Left + span.Width / 2;
  const int y = static_cast<int>(place.top + place.bottom) / 2;
  const auto fill = [&](int left, int top, int right, int bottom) {
    const RECT part = {left, top, right, bottom};
    FillRect(context, &part, GetSysColorBrush(ink));
  };
  const int first = thick / 2;
  const int last = thick - first;
  fill(x - half - first, y - half - first, x + half + last, y - half + last);
  fill(x - half - first, y + half - first, x + half + last, y + half + last);
  fill(x - half - first, y - half - first, x - half + last, y + half + last);
  fill(x + half - first, y - half - first, x + half + last, y + half + last);
  const int arm = half - 2 * thick;
  fill(x - arm - first, y - first, x + arm + last, y + last);
  if (mark == FoldMark::Folded) fill(x - first, y - arm - first, x + last, y + arm + last);
}

HWND MakeRowsWindow(const WindowSite& site, DWORD style) {
  return MakeWindow(WC_LISTVIEWW,
                    LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER | LVS_SHOWSELALWAYS | WS_TABSTOP | style, site,
                    WS_EX_CLIENTEDGE);
}

}  // namespace orx::win32
