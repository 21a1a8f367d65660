#include "forms/TreeList.h"

#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include "desktops/win32/Handles.h"
#include "desktops/win32/Peers.h"
#include "desktops/win32/Text.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

/// In twips: what a row is higher than its text, the width that a level takes, and the gap before a text.
constexpr int kRowGap = 60;
constexpr int kLevelWidth = 240;
constexpr int kTextGap = 45;

int RowHeight(HWND window, HFONT face) {
  const WindowContext context(window);
  const Selection selection(context.Get(), face);
  TEXTMETRICW metrics = {};
  GetTextMetricsW(context.Get(), &metrics);
  return static_cast<int>(metrics.tmHeight);
}

/// A list that asks for what it paints. It shows rows and scrolls; mouse and keys are the control's business.
class TreeListPeer final : public Peer {
 public:
  TreeListPeer(TreeList& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, 0, LVS_EX_DOUBLEBUFFER | LVS_EX_FULLROWSELECT);
    LVCOLUMNW column = {};
    Send(LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    // The height of the pictures that rows might have is the height of the rows.
    const int height = RowHeight(window, dialog.Face()) + Pixels(kRowGap);
    Send(LVM_SETIMAGELIST, LVSIL_SMALL, reinterpret_cast<LPARAM>(ImageList_Create(1, height, ILC_COLOR, 1, 1)));
  }

 private:
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(Window(), message, wParam, lParam);
  }
  int Pixels(int twips) const { return mControl.OwnerForm().OwnerDesktop().ToPixels(twips); }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) MirrorRows();
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorSelection(aspect == Aspect::Value);
    if (aspect == Aspect::Text) InvalidateRect(Window(), nullptr, FALSE);
    Peer::Mirror(aspect);
    if (aspect == Aspect::Items || aspect == Aspect::Place) FillWidth();
  }

  void MirrorRows() const {
    Send(LVM_SETITEMCOUNT, static_cast<WPARAM>(mControl.ShownCount()), LVSICF_NOSCROLL | LVSICF_NOINVALIDATEALL);
    InvalidateRect(Window(), nullptr, TRUE);
  }

  /// Folding rows must not make the list jump to the selected one.
  void MirrorSelection(bool scrolls) const {
    const int position = mControl.ListIndex() < 0 ? -1 : mControl.PositionOf(mControl.ListIndex());
    if (Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) != position) {
      SetState(-1, 0);
      if (position >= 0) SetState(position, LVIS_SELECTED | LVIS_FOCUSED);
    }
    if (scrolls && position >= 0) Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(position), FALSE);
  }

  void SetState(int position, UINT state) const {
    LVITEMW item = {};
    item.state = state;
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    Send(LVM_SETITEMSTATE, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&item));
  }

  void FillWidth() const {
    RECT client;
    GetClientRect(Window(), &client);
    if (Send(LVM_GETCOLUMNWIDTH, 0) != client.right) Send(LVM_SETCOLUMNWIDTH, 0, client.right);
  }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
    switch (message) {
      case WM_LBUTTONDOWN:
      case WM_LBUTTONDBLCLK:
        Pressed({GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)}, message == WM_LBUTTONDBLCLK);
        return 0;
      case WM_KEYDOWN:
        if (GetKeyState(VK_CONTROL) < 0) return 0;
        KeyPressed(static_cast<int>(wParam));
        return 0;
      case WM_CHAR:
        Typed(static_cast<wchar_t>(wParam));
        return 0;
      case WM_SIZE: {
        const LRESULT result = Peer::OnMessage(window, message, wParam, lParam);
        FillWidth();
        return result;
      }
      default:
        return Peer::OnMessage(window, message, wParam, lParam);
    }
  }

  void Pressed(POINT at, bool twice) {
    TreeList& control = mControl;
    LVHITTESTINFO hit = {};
    hit.pt = at;
    const auto position = static_cast<int>(Send(LVM_HITTEST, 0, reinterpret_cast<LPARAM>(&hit)));
    if (position < 0 || position >= control.ShownCount()) {
      FocusIsGranted();
      return;
    }
    const int row = control.ShownRow(position);
    const int mark = control.Row(row).Level * Pixels(kLevelWidth);
    const bool isOnMark = at.x >= mark && at.x < mark + Pixels(kLevelWidth);
    const bool folds = control.HasChildren(row) && (isOnMark || twice);
    Report([&] { folds ? control.UserFold(row) : control.UserClick(row); });
  }

  void KeyPressed(int key) {
    TreeList& control = mControl;
    if (key == VK_OEM_PLUS) key = kKeyCodePlus;
    if (key == VK_OEM_MINUS) key = kKeyCodeMinus;
    control.PageRows(static_cast<int>(Send(LVM_GETCOUNTPERPAGE)));
    Report([&] { control.UserKeyDown(key); });
  }

  void Typed(wchar_t unit) {
    TreeList& control = mControl;
    if (!IS_HIGH_SURROGATE(unit) && !IS_LOW_SURROGATE(unit)) Report([&] { control.UserCharacter(unit); });
  }

  LRESULT OnNotify(const NMHDR& notice) override {
    if (Owner().IsRetired()) return 0;
    switch (notice.code) {
      case LVN_GETDISPINFOW:
        GiveText(reinterpret_cast<NMLVDISPINFOW&>(const_cast<NMHDR&>(notice)).item);
        return 0;
      case NM_CUSTOMDRAW:
        return Draw(reinterpret_cast<const NMLVCUSTOMDRAW&>(notice));
      case LVN_ITEMCHANGED:
        NativeSelected(reinterpret_cast<const NMLISTVIEW&>(notice));
        return 0;
      default:
        return 0;
    }
  }

  /// Assistive software selects rows without mouse and keys.
  void NativeSelected(const NMLISTVIEW& change) {
    TreeList& control = mControl;
    if (change.iItem < 0 || change.iItem >= control.ShownCount() || !(change.uNewState & LVIS_SELECTED)) return;
    Report([&] { control.UserClick(control.ShownRow(change.iItem)); });
  }

  void GiveText(LVITEMW& item) const {
    if (!(item.mask & LVIF_TEXT) || item.cchTextMax <= 0) return;
    const std::wstring text = TextAt(item.iItem);
    lstrcpynW(item.pszText, text.c_str(), item.cchTextMax);
  }

  std::wstring TextAt(int position) const {
    if (position < 0 || position >= mControl.ShownCount()) return {};
    return Widened(mControl.Row(mControl.ShownRow(position)).Text);
  }

  LRESULT Draw(const NMLVCUSTOMDRAW& draw) const {
    if (draw.nmcd.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (draw.nmcd.dwDrawStage != CDDS_ITEMPREPAINT) return CDRF_DODEFAULT;
    const auto position = static_cast<int>(draw.nmcd.dwItemSpec);
    if (position < mControl.ShownCount()) DrawRow(draw.nmcd.hdc, position);
    return CDRF_SKIPDEFAULT;
  }

  void DrawRow(HDC context, int position) const {
    const int row = mControl.ShownRow(position);
    RECT place = {LVIR_BOUNDS, 0, 0, 0};
    Send(LVM_GETITEMRECT, static_cast<WPARAM>(position), reinterpret_cast<LPARAM>(&place));
    const bool isFocused = GetFocus() == Window();
    const bool isSelected = row == mControl.ListIndex();
    int ground = COLOR_WINDOW;
    int ink = IsWindowEnabled(Window()) ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT;
    if (isSelected) {
      ground = isFocused ? COLOR_HIGHLIGHT : COLOR_BTNFACE;
      ink = isFocused ? COLOR_HIGHLIGHTTEXT : COLOR_BTNTEXT;
    }
    FillRect(context, &place, GetSysColorBrush(ground));
    RECT text = place;
    text.left += (mControl.Row(row).Level + 1) * Pixels(kLevelWidth) + Pixels(kTextGap);
    if (mControl.HasChildren(row)) DrawMark(context, place, row, ink);
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, GetSysColor(ink));
    const std::wstring shown = TextAt(position);
    DrawTextW(context, shown.c_str(), static_cast<int>(shown.size()), &text,
              DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
    if (isSelected && isFocused) DrawFocusRect(context, &place);
  }

  /// A square with a minus, and while the row is folded with a plus.
  void DrawMark(HDC context, const RECT& place, int row, int ink) const {
    const int half = Pixels(4 * kTwipsPerPixel);
    const int thick = std::max(1, Pixels(kTwipsPerPixel));
    const int x = mControl.Row(row).Level * Pixels(kLevelWidth) + Pixels(kLevelWidth) / 2;
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
    if (!mControl.Row(row).Expanded) fill(x - first, y - arm - first, x + last, y + arm + last);
  }

  TreeList& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(TreeList& control, Dialog& dialog, const WindowSite& site) {
  constexpr DWORD kStyle =
      LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER | LVS_SINGLESEL | LVS_SHOWSELALWAYS | WS_TABSTOP;
  return std::make_unique<TreeListPeer>(control, dialog, MakeWindow(WC_LISTVIEWW, kStyle, site, WS_EX_CLIENTEDGE));
}

}  // namespace orx::win32
