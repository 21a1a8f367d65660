#include "forms/Button.h"

#include "desktops/win32/Peers.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

class ButtonPeer final : public Peer {
 public:
  ButtonPeer(Button& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text) ShowText(Window(), mControl.Caption());
    Peer::Mirror(aspect);
  }

  bool LeavesArrowKeys() const override { return true; }

  void OnCommand(int code) override {
    Button& control = mControl;
    if (code == BN_CLICKED) Report([&] { control.UserPress(); });
  }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
    // Enter presses the button that has the focus, so it wears the mark of the default one meanwhile.
    if (message == WM_SETFOCUS) MarkDefault(window);
    if (message == WM_KILLFOCUS) MarkDefault(nullptr);
    return Peer::OnMessage(window, message, wParam, lParam);
  }

  void MarkDefault(HWND focused) const {
    const auto mark = [](HWND button, bool isDefault) {
      SendMessageW(button, BM_SETSTYLE, isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON, TRUE);
    };
    if (Owner().IsRetired()) return;
    const Button* const byEnter = mControl.OwnerForm().ButtonFor(ButtonRole::Default);
    if (byEnter && byEnter != &mControl && PeerOf(*byEnter)) mark(PeerOf(*byEnter)->Window(), !focused);
    if (byEnter != &mControl) mark(Window(), focused != nullptr);
  }

  Button& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(Button& control, Dialog& dialog, const WindowSite& site) {
  const DWORD style = control.Role() == ButtonRole::Default ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  return std::make_unique<ButtonPeer>(control, dialog, MakeWindow(L"BUTTON", style | WS_TABSTOP, site));
}

}  // namespace orx::win32
