#include "forms/ListBox.h"

#include "desktops/win32/Peers.h"
#include "desktops/win32/RowsPeer.h"

namespace orx::win32 {
namespace {

class ListBoxPeer final : public RowsPeer {
 public:
  ListBoxPeer(ListBox& control, Dialog& dialog, HWND window) : RowsPeer(control, dialog, window), mControl(control) {}

 private:
  int Count() const override { return mControl.ListCount(); }
  const std::string& TextAt(int position) const override { return mControl.List(position); }
  bool IsSelected(int position) const override { return mControl.Selected(position); }
  int FocusedPosition() const override { return mControl.FocusRow(); }
  bool ScrollsAcross() const override { return true; }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) {
      MirrorRows();
      MirrorState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
      mShown.clear();
    }
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorSelection();
    Peer::Mirror(aspect);
    if (aspect == Aspect::Items || aspect == Aspect::Place) FillWidth();
    // Before it has its place, a list has no room to show anything in.
    if (aspect == Aspect::Place) RevealCurrent();
  }

  /// Tells the view what has changed alone: a long list may have many selected entries.
  void MirrorSelection() {
    std::set<int> selected = mControl.SelectedRows();
    for (const int row : mShown)
      if (!selected.contains(row)) MirrorState(row, 0, LVIS_SELECTED);
    for (const int row : selected)
      if (!mShown.contains(row)) MirrorState(row, LVIS_SELECTED, LVIS_SELECTED);
    mShown = std::move(selected);
    if (mControl.FocusRow() >= 0) MirrorState(mControl.FocusRow(), LVIS_FOCUSED, LVIS_FOCUSED);
    RevealCurrent();
    InvalidateRect(Window(), nullptr, FALSE);
  }

  void RevealCurrent() const {
    if (mControl.ListIndex() >= 0) Reveal(mControl.ListIndex());
  }

  void Pressed(int position, POINT, bool twice) override {
    ListBox& control = mControl;
    Report([&] { twice ? control.UserDoubleClick(position) : control.UserClick(position); });
  }

  void KeyPressed(int key, int pageRows) override {
    ListBox& control = mControl;
    control.PageRows(pageRows);
    Report([&] { control.UserKeyDown(key); });
  }

  void Typed(char32_t character) override {
    ListBox& control = mControl;
    Report([&] { control.UserCharacter(character); });
  }

  void NativeSelected(int position, bool isSelected) override {
    ListBox& control = mControl;
    if (isSelected || control.MultiSelect()) Report([&] { control.UserSelect(position, isSelected); });
  }

  ListBox& mControl;
  /// The entries that the view shows as selected.
  std::set<int> mShown;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ListBox& control, Dialog& dialog, const WindowSite& site) {
  const DWORD style = LVS_REPORT | LVS_OWNERDATA | LVS_NOCOLUMNHEADER | LVS_SHOWSELALWAYS | WS_TABSTOP |
                      (control.MultiSelect() ? 0 : LVS_SINGLESEL);
  return std::make_unique<ListBoxPeer>(control, dialog, MakeWindow(WC_LISTVIEWW, style, site, WS_EX_CLIENTEDGE));
}

}  // namespace orx::win32
