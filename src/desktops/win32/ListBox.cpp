#include "forms/ListBox.h"

#include "desktops/win32/Peers.h"
#include "desktops/win32/Text.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

class ListBoxPeer final : public Peer {
 public:
  ListBoxPeer(ListBox& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {}

 private:
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(Window(), message, wParam, lParam);
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) MirrorItems();
    if (aspect == Aspect::Items || aspect == Aspect::Value)
      Send(LB_SETCURSEL, static_cast<WPARAM>(mControl.ListIndex()));
    Peer::Mirror(aspect);
  }

  void MirrorItems() const {
    Send(WM_SETREDRAW, FALSE);
    Send(LB_RESETCONTENT);
    for (int index = 0; index < mControl.ListCount(); ++index)
      Send(LB_ADDSTRING, 0, reinterpret_cast<LPARAM>(Widened(mControl.List(index)).c_str()));
    Send(WM_SETREDRAW, TRUE);
    InvalidateRect(Window(), nullptr, TRUE);
  }

  void OnCommand(int code) override {
    if (code != LBN_SELCHANGE) return;
    const auto index = static_cast<int>(Send(LB_GETCURSEL));
    ListBox& control = mControl;
    if (index >= 0) Report([&] { control.UserPick(index); });
  }

  ListBox& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ListBox& control, Dialog& dialog, const WindowSite& site) {
  constexpr DWORD kStyle = LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_VSCROLL | WS_TABSTOP;
  return std::make_unique<ListBoxPeer>(control, dialog, MakeWindow(L"LISTBOX", kStyle, site, WS_EX_CLIENTEDGE));
}

}  // namespace orx::win32
