#include "forms/Panel.h"

#include "desktops/qt/Peers.h"

namespace orx::qt {
namespace {

class PanelPeer final : public Peer {
 public:
  PanelPeer(Panel& control, Dialog& dialog, QWidget* native) : Peer(control, dialog, native), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    // The page of a tab control is visible itself but not shown while its tab is not selected.
    if (aspect == Aspect::Visible) return ShowIf(mControl.Visible() && mControl.ShowsChildren());
    Peer::Mirror(aspect);
  }

  Panel& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(Panel& control, Dialog& dialog, QWidget& parent) {
  return std::make_unique<PanelPeer>(control, dialog, new QWidget(&parent));
}

}  // namespace orx::qt
