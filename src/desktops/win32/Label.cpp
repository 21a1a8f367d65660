#include "forms/Label.h"

#include "desktops/win32/Peers.h"

namespace orx::win32 {
namespace {

class LabelPeer final : public Peer {
 public:
  LabelPeer(Label& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text) ShowText(Window(), mControl.Caption());
    Peer::Mirror(aspect);
  }

  Label& mControl;
};

DWORD StyleOf(const Label& control) {
  if (control.Align() == Alignment::Right) return SS_RIGHT;
  if (control.Align() == Alignment::Center) return SS_CENTER;
  return control.Wraps() ? SS_LEFT : SS_LEFTNOWORDWRAP;
}

}  // namespace

std::unique_ptr<Peer> MakePeer(Label& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<LabelPeer>(control, dialog, MakeWindow(L"STATIC", StyleOf(control), site));
}

}  // namespace orx::win32
