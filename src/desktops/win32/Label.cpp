#include "forms/Label.h"

#include "desktops/win32/Handles.h"
#include "desktops/win32/Peers.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

class LabelPeer final : public Peer {
 public:
  LabelPeer(Label& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text) ShowText(Window(), mControl.Caption());
    Peer::Mirror(aspect);
    if (aspect == Aspect::Text || aspect == Aspect::Place) CutText(Fits() ? "" : WithoutMnemonic(mControl.Caption()));
  }

  bool Fits() const {
    if (mControl.Wraps()) return true;
    const WindowContext context(Window());
    const Selection font(context.Get(), Owner().Face());
    RECT text = {};
    DrawTextW(context.Get(), Widened(mControl.Caption()).c_str(), -1, &text, DT_SINGLELINE | DT_CALCRECT);
    return text.right <= PixelSize().cx;
  }

  Label& mControl;
};

DWORD StyleOf(const Label& control) {
  const DWORD ending = control.Wraps() ? 0 : SS_ENDELLIPSIS;
  if (control.Align() == Alignment::Right) return SS_RIGHT | ending;
  if (control.Align() == Alignment::Center) return SS_CENTER | ending;
  return (control.Wraps() ? SS_LEFT : SS_LEFTNOWORDWRAP) | ending;
}

}  // namespace

std::unique_ptr<Peer> MakePeer(Label& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<LabelPeer>(control, dialog, MakeWindow(L"STATIC", StyleOf(control), site));
}

}  // namespace orx::win32
