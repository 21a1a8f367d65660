#include "forms/TabControl.h"

#include <windows.h>

#include <commctrl.h>

#include "desktops/win32/Handles.h"
#include "desktops/win32/Peers.h"
#include "desktops/win32/Text.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

/// How much of the space between a page and the line around it is free in every theme, in pixels.
constexpr int kRim = 2;

class TabControlPeer final : public Peer {
 public:
  TabControlPeer(TabControl& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {
    for (int tab = 0; tab < control.TabCount(); ++tab) {
      TCITEMW item = {};
      Send(TCM_INSERTITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
    }
    // The strip fills the room that the pages leave for it.
    const int strip = dialog.Owner().OwnerDesktop().ToPixels(TabControl::kStrip);
    RECT page = {0, 0, 1000, 1000};
    Send(TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&page));
    RECT first = {};
    Send(TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&first));
    const int rest = static_cast<int>(page.top - (first.bottom - first.top));
    Send(TCM_SETITEMSIZE, 0, MAKELPARAM(0, strip - rest));
  }

 private:
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(Window(), message, wParam, lParam);
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items)
      for (int tab = 0; tab < mControl.TabCount(); ++tab) ShowCaption(tab);
    if (aspect == Aspect::Value) MirrorTab();
    Peer::Mirror(aspect);
  }

  void ShowCaption(int tab) const {
    std::wstring caption = Widened(mControl.TabCaption(tab));
    TCITEMW item = {};
    item.mask = TCIF_TEXT;
    item.pszText = caption.data();
    Send(TCM_SETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
  }

  void MirrorTab() const {
    if (Send(TCM_GETCURSEL) != mControl.Tab()) Send(TCM_SETCURSEL, static_cast<WPARAM>(mControl.Tab()));
    for (int tab = 0; tab < mControl.TabCount(); ++tab)
      if (ControlPeer* const page = mControl.Page(tab).Peer()) page->Update(Aspect::Visible);
  }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
    const LRESULT result = Peer::OnMessage(window, message, wParam, lParam);
    if (message == WM_PAINT) PaintRim(window);
    return result;
  }

  /// The pages have the colour of the dialog; some themes show another one between them and the line around them.
  static void PaintRim(HWND window) {
    RECT body;
    GetClientRect(window, &body);
    SendMessageW(window, TCM_ADJUSTRECT, FALSE, reinterpret_cast<LPARAM>(&body));
    // To the right and below, the line is further inside.
    body.left -= kRim;
    body.right += kRim / 2;
    body.bottom += kRim / 2;
    const WindowContext context(window, DCX_CLIPCHILDREN);
    FillRect(context.Get(), &body, GetSysColorBrush(COLOR_BTNFACE));
  }

  LRESULT OnNotify(const NMHDR& notice) override {
    if (notice.code != TCN_SELCHANGE) return 0;
    const auto tab = static_cast<int>(Send(TCM_GETCURSEL));
    TabControl& control = mControl;
    if (tab >= 0) Report([&] { control.UserSelect(tab); });
    return 0;
  }

  TabControl& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(TabControl& control, Dialog& dialog, const WindowSite& site) {
  const HWND window = MakeWindow(WC_TABCONTROLW, WS_CLIPCHILDREN | WS_TABSTOP, site, WS_EX_CONTROLPARENT);
  return std::make_unique<TabControlPeer>(control, dialog, window);
}

}  // namespace orx::win32
