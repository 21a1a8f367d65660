#include "forms/NativeArea.h"

#include "desktops/win32/Peers.h"

namespace orx::win32 {
namespace {

/// Raises Closing when it is destroyed, which is before its window is.
class NativeAreaPeer final : public Peer {
 public:
  NativeAreaPeer(NativeArea& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {}
  ~NativeAreaPeer() override {
    if (mIsOpen) mControl.Closing.Raise();
  }

 private:
  void Mirror(Aspect aspect) override {
    Peer::Mirror(aspect);
    if (aspect != Aspect::Place) return;
    if (mIsOpen) {
      const SIZE size = PixelSize();
      mControl.Sized.Raise({static_cast<int>(size.cx), static_cast<int>(size.cy)});
    } else {
      mIsOpen = true;
      mControl.Opened.Raise(reinterpret_cast<std::uintptr_t>(Window()));
    }
  }

  bool UsesKey(const MSG& message) override {
    if (!mControl.FilterKey || !IsChild(Window(), message.hwnd)) return false;
    MSG seen = message;
    return mControl.FilterKey(&seen);
  }

  bool HoldsForeignWindows() const override { return true; }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
    // Comes from the window under the mouse before that takes the focus: the field that loses it may refuse to let go.
    if (message == WM_MOUSEACTIVATE && !mControl.HasFocus() && !FocusIsGranted()) return MA_ACTIVATEANDEAT;
    return Peer::OnMessage(window, message, wParam, lParam);
  }

  void FocusNative() override {
    if (mControl.FocusEnters.HasHandler()) return mControl.FocusEnters.Raise();
    Peer::FocusNative();
  }

  NativeArea& mControl;
  bool mIsOpen = false;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(NativeArea& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<NativeAreaPeer>(control, dialog, MakePane(WS_CLIPCHILDREN | WS_TABSTOP, site));
}

}  // namespace orx::win32
