#include "forms/CheckBox.h"

#include "desktops/win32/Peers.h"

namespace orx::win32 {
namespace {

class CheckBoxPeer final : public Peer {
 public:
  CheckBoxPeer(CheckBox& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text) ShowText(Window(), mControl.Caption());
    // The states have the platform's codes.
    if (aspect == Aspect::Value) SendMessageW(Window(), BM_SETCHECK, static_cast<WPARAM>(mControl.Value()), 0);
    Peer::Mirror(aspect);
  }

  bool LeavesArrowKeys() const override { return true; }

  void OnCommand(int code) override {
    CheckBox& control = mControl;
    if (code == BN_CLICKED) Report([&] { control.UserToggle(); });
  }

  CheckBox& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(CheckBox& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<CheckBoxPeer>(control, dialog, MakeWindow(L"BUTTON", BS_3STATE | WS_TABSTOP, site));
}

}  // namespace orx::win32
