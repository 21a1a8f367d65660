#include "forms/ListBox.h"

#include "desktops/win32/RowsPeer.h"
#include "forms/RowMeasures.h"

namespace orx::win32 {
namespace {

class ListBoxPeer final : public RowsPeer {
 public:
  ListBoxPeer(ListBox& control, Dialog& dialog, HWND window)
      : RowsPeer(control, control, dialog, window), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) {
      MirrorRows();
      MirrorState(-1, 0, LVIS_SELECTED | LVIS_FOCUSED);
      mShown.Clear();
    }
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorSelection();
    Peer::Mirror(aspect);
    if (aspect == Aspect::Items || aspect == Aspect::Place) FillWidth();
    // A list without its place has no room to show anything.
    if (aspect == Aspect::Place) RevealCurrent();
  }

  void MirrorSelection() {
    mShown.Show(mControl.SelectedRows(),
                [this](int row, bool isSelected) { MirrorState(row, isSelected ? LVIS_SELECTED : 0, LVIS_SELECTED); });
    if (mControl.FocusPosition() >= 0) MirrorState(mControl.FocusPosition(), LVIS_FOCUSED, LVIS_FOCUSED);
    RevealCurrent();
    InvalidateRect(Window(), nullptr, FALSE);
  }

  void RevealCurrent() const {
    if (mControl.ListIndex() >= 0) Reveal(mControl.ListIndex());
  }

  ListBox& mControl;
  ShownSelection mShown;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ListBox& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<ListBoxPeer>(control, dialog,
                                       MakeRowsWindow(site, control.MultiSelect() ? 0 : LVS_SINGLESEL));
}

}  // namespace orx::win32
