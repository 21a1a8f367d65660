#include "forms/Frame.h"

#include <windows.h>

#include <uxtheme.h>

#include "desktops/win32/Peers.h"
#include "desktops/win32/Text.h"
#include "forms/Desktop.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

/// The part and states of a group box in the themes of buttons.
constexpr int kGroupBox = 4;
constexpr int kNormal = 1;
constexpr int kDisabled = 2;
/// The space before the caption, in twips.
constexpr int kIndent = 120;

class FramePeer final : public Peer {
 public:
  FramePeer(Frame& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {}

 private:
  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text) ShowText(Window(), mControl.Caption());
    if (aspect == Aspect::Text || aspect == Aspect::Enabled) InvalidateRect(Window(), nullptr, TRUE);
    Peer::Mirror(aspect);
  }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message != WM_PAINT) return Peer::OnMessage(window, message, wParam, lParam);
    PAINTSTRUCT paint;
    const HDC context = BeginPaint(window, &paint);
    Paint(context);
    EndPaint(window, &paint);
    return 0;
  }

  void Paint(HDC context) const {
    const Form& form = mControl.OwnerForm();
    if (form.RightToLeft()) SetLayout(context, LAYOUT_RTL);
    const Selection font(context, Owner().Face());
    const std::wstring caption = Widened(mControl.Caption());
    RECT box;
    GetClientRect(Window(), &box);
    RECT text = box;
    text.left += form.OwnerDesktop().ToPixels(kIndent);
    DrawTextW(context, caption.c_str(), -1, &text, DT_SINGLELINE | DT_CALCRECT);
    if (caption.empty()) text.right = text.left;
    box.top += (text.bottom - text.top) / 2;
    const int saved = SaveDC(context);
    if (!caption.empty()) ExcludeClipRect(context, text.left - 3, text.top, text.right + 3, text.bottom);
    DrawBox(context, box);
    RestoreDC(context, saved);
    SetBkMode(context, TRANSPARENT);
    SetTextColor(context, GetSysColor(mControl.IsReachable() ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
    DrawTextW(context, caption.c_str(), -1, &text, DT_SINGLELINE);
  }

  void DrawBox(HDC context, RECT box) const {
    if (const HTHEME theme = OpenThemeData(Window(), L"BUTTON")) {
      DrawThemeBackground(theme, context, kGroupBox, mControl.Enabled() ? kNormal : kDisabled, &box, nullptr);
      CloseThemeData(theme);
    } else {
      DrawEdge(context, &box, EDGE_ETCHED, BF_RECT);
    }
  }

  Frame& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(Frame& control, Dialog& dialog, const WindowSite& site) {
  return std::make_unique<FramePeer>(control, dialog, MakePane(WS_CLIPCHILDREN, site));
}

}  // namespace orx::win32
