#include "forms/ProgressBar.h"

#include <windows.h>

#include <commctrl.h>

#include "desktops/win32/Peers.h"

namespace orx::win32 {
namespace {

class ProgressBarPeer final : public Peer {
 public:
  ProgressBarPeer(ProgressBar& control, Dialog& dialog, HWND window)
      : Peer(control, dialog, window), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Value) MirrorValue();
    Peer::Mirror(aspect);
  }

  void MirrorValue() {
    // The control would paint each of these steps; turning that on again shows it, so a hidden one is left alone.
    const bool isShown = (GetWindowLongPtrW(Window(), GWL_STYLE) & WS_VISIBLE) != 0;
    if (isShown) SendMessageW(Window(), WM_SETREDRAW, FALSE, 0);
    const auto filled = static_cast<WPARAM>(mControl.FilledPixels());
    // A themed bar animates slowly upwards but moves down at once, so it is set one pixel too far and then back. For a
    // full bar the range is one larger meanwhile.
    SendMessageW(Window(), PBM_SETRANGE32, 0, mControl.Pixels() + 1);
    SendMessageW(Window(), PBM_SETPOS, filled + 1, 0);
    SendMessageW(Window(), PBM_SETPOS, filled, 0);
    SendMessageW(Window(), PBM_SETRANGE32, 0, mControl.Pixels());
    if (!isShown) return;
    SendMessageW(Window(), WM_SETREDRAW, TRUE, 0);
    InvalidateRect(Window(), nullptr, TRUE);
  }

  ProgressBar& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ProgressBar& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<ProgressBarPeer>(control, dialog, MakeWindow(PROGRESS_CLASSW, PBS_SMOOTH, site));
}

}  // namespace orx::win32
