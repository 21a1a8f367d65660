#include "forms/Panel.h"

#include "desktops/win32/Peers.h"

namespace orx::win32 {
namespace {

class PanelPeer final : public Peer {
 public:
  PanelPeer(Panel& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    // The page of a tab control is visible itself but not shown while its tab is not selected.
    if (aspect == Aspect::Visible) {
      ShowWindow(Window(), mControl.Visible() && mControl.ShowsChildren() ? SW_SHOWNA : SW_HIDE);
      return;
    }
    Peer::Mirror(aspect);
  }

  Panel& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(Panel& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<PanelPeer>(control, dialog, MakePane(WS_CLIPCHILDREN, site));
}

}  // namespace orx::win32
