#include "forms/TextBox.h"

#include "desktops/win32/Peers.h"
#include "desktops/win32/Text.h"

namespace orx::win32 {
namespace {

class TextBoxPeer final : public Peer {
 public:
  TextBoxPeer(TextBox& control, Dialog& dialog, HWND window) : Peer(control, dialog, window), mControl(control) {
    // The platform's own limit is too low for some texts.
    SendMessageW(window, EM_SETLIMITTEXT, 0, 0);
  }

 private:
  bool HasLines() const { return mControl.Lines() == TextLines::Multiple; }
  bool TakesReturn() const override { return HasLines() && !mControl.Locked(); }

  std::wstring NativeText() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(Window())) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(Window(), text.data(), static_cast<int>(text.size()))));
    return text;
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Text) SetWindowTextW(Window(), ToNativeLines(mControl.Text()).c_str());
    if (aspect == Aspect::Text || aspect == Aspect::Selection) MirrorSelection();
    Peer::Mirror(aspect);
  }

  void MirrorSelection() const {
    const std::wstring text = NativeText();
    const int start = UnitOffset(text, mControl.SelStart());
    const int end = UnitOffset(text, mControl.SelStart() + mControl.SelLength());
    SendMessageW(Window(), EM_SETSEL, static_cast<WPARAM>(start), end);
    // A locked field of several lines is a log, whose last lines are the newest.
    if (HasLines() && mControl.Locked()) SendMessageW(Window(), WM_VSCROLL, SB_BOTTOM, 0);
  }

  void OnCommand(int code) override {
    if (code == EN_CHANGE) ReportState(&TextBox::UserText);
  }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
    // Not all versions of the platform select all on Ctrl+A.
    if (message == WM_CHAR && wParam == 1) return SendMessageW(window, EM_SETSEL, 0, -1);
    Dialog& dialog = Owner();
    const LRESULT result = Peer::OnMessage(window, message, wParam, lParam);
    const bool mayMoveCaret = message == WM_KEYDOWN || message == WM_CHAR || message == WM_LBUTTONDOWN ||
                              message == WM_LBUTTONUP || message == EM_SETSEL;
    if (mayMoveCaret && !dialog.IsRetired()) ReportSelection();
    return result;
  }

  void ReportSelection() {
    ReportState([](TextBox& box, const std::string&, int start, int length) { box.UserSelect(start, length); });
  }

  template <class Act>
  void ReportState(Act act) {
    const std::wstring text = NativeText();
    DWORD start = 0;
    DWORD end = 0;
    SendMessageW(Window(), EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
    const int first = CharacterIndex(text, static_cast<int>(start));
    const int count = CharacterIndex(text, static_cast<int>(end)) - first;
    TextBox& control = mControl;
    Report([&] { std::invoke(act, control, FromNativeLines(text), first, count); });
  }

  TextBox& mControl;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(TextBox& control, Dialog& dialog, const WindowSite& site) {
  DWORD style = WS_TABSTOP | (control.Locked() ? ES_READONLY : 0);
  style |= control.Lines() == TextLines::Multiple ? ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL
                                                  : ES_AUTOHSCROLL;
  // Numbers and paths are read from left to right everywhere.
  const WindowSite plain{site.Parent, site.Id};
  return std::make_unique<TextBoxPeer>(control, dialog, MakeWindow(L"EDIT", style, plain, WS_EX_CLIENTEDGE));
}

}  // namespace orx::win32
