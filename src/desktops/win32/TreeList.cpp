#include "forms/TreeList.h"

#include <algorithm>

#include "desktops/win32/Peers.h"
#include "desktops/win32/RowsPeer.h"
#include "forms/Geometry.h"
#include "forms/Keys.h"

namespace orx::win32 {
namespace {

/// In twips: the width that a level takes.
constexpr int kLevelWidth = 240;

class TreeListPeer final : public RowsPeer {
 public:
  TreeListPeer(TreeList& control, Dialog& dialog, HWND window) : RowsPeer(control, dialog, window), mControl(control) {}

 private:
  int Count() const override { return mControl.ShownCount(); }
  const std::string& TextAt(int position) const override { return mControl.Row(mControl.ShownRow(position)).Text; }
  bool IsSelected(int position) const override { return mControl.ShownRow(position) == mControl.ListIndex(); }
  int FocusedPosition() const override {
    return mControl.ListIndex() < 0 ? -1 : mControl.PositionOf(mControl.ListIndex());
  }
  int IndentOf(int position) const override {
    return (mControl.Row(mControl.ShownRow(position)).Level + 1) * Pixels(kLevelWidth);
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) MirrorRows();
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorSelection(aspect == Aspect::Value);
    if (aspect == Aspect::Text) InvalidateRect(Window(), nullptr, FALSE);
    Peer::Mirror(aspect);
    if (aspect == Aspect::Items || aspect == Aspect::Place) FillWidth();
  }

  /// Folding rows must not make the list jump to the selected one.
  void MirrorSelection(bool scrolls) const {
    constexpr UINT kSelected = LVIS_SELECTED | LVIS_FOCUSED;
    const int position = FocusedPosition();
    if (Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) != position) {
      MirrorState(-1, 0, kSelected);
      if (position >= 0) MirrorState(position, kSelected, kSelected);
    }
    if (scrolls && position >= 0) Reveal(position);
  }

  void Pressed(int position, POINT at, bool twice) override {
    TreeList& control = mControl;
    const int row = control.ShownRow(position);
    const int mark = control.Row(row).Level * Pixels(kLevelWidth);
    const bool isOnMark = at.x >= mark && at.x < mark + Pixels(kLevelWidth);
    const bool folds = control.HasChildren(row) && (isOnMark || twice);
    Report([&] { folds ? control.UserFold(row) : control.UserClick(row); });
  }

  void KeyPressed(int key, int pageRows) override {
    TreeList& control = mControl;
    if (key == VK_OEM_PLUS) key = kKeyCodePlus;
    if (key == VK_OEM_MINUS) key = kKeyCodeMinus;
    control.PageRows(pageRows);
    Report([&] { control.UserKeyDown(key); });
  }

  void Typed(char32_t character) override {
    TreeList& control = mControl;
    Report([&] { control.UserCharacter(character); });
  }

  void NativeSelected(int position, bool isSelected) override {
    TreeList& control = mControl;
    if (isSelected) Report([&] { control.UserClick(control.ShownRow(position)); });
  }

  /// A square with a minus, and while the row is folded with a plus.
  void DrawMark(HDC context, const RECT& place, int position, int ink) const override {
    const int row = mControl.ShownRow(position);
    if (!mControl.HasChildren(row)) return;
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
