#include "forms/TreeList.h"

#include "desktops/win32/RowsPeer.h"

namespace orx::win32 {
namespace {

class TreeListPeer final : public RowsPeer {
 public:
  TreeListPeer(TreeList& control, Dialog& dialog, HWND window)
      : RowsPeer(control, control, dialog, window), mControl(control) {}

 private:
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
    const int position = mControl.FocusPosition();
    if (Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED) != position) {
      MirrorState(-1, 0, kSelected);
      if (position >= 0) MirrorState(position, kSelected, kSelected);
    }
    if (scrolls && position >= 0) Reveal(position);
  }

  TreeList& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(TreeList& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<TreeListPeer>(control, dialog, MakeRowsWindow(site, LVS_SINGLESEL));
}

}  // namespace orx::win32
