#include "forms/ComboBox.h"

#include "desktops/win32/Peers.h"
#include "desktops/win32/Text.h"
#include "forms/Form.h"

namespace orx::win32 {
namespace {

/// The number of entries that an open list shows.
constexpr int kShownEntries = 12;

HWND EditOf(HWND combo) {
  COMBOBOXINFO info = {};
  info.cbSize = sizeof(info);
  return GetComboBoxInfo(combo, &info) ? info.hwndItem : nullptr;
}

class ComboBoxPeer final : public Peer {
 public:
  ComboBoxPeer(ComboBox& control, Dialog& dialog, HWND window)
      : Peer(control, dialog, window, control.Style() == ComboStyle::Editable ? EditOf(window) : nullptr),
        mControl(control) {}

 private:
  bool IsEditable() const { return mControl.Style() == ComboStyle::Editable; }
  LRESULT Send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const {
    return SendMessageW(Window(), message, wParam, lParam);
  }
  bool IsOpen() const { return Send(CB_GETDROPPEDSTATE) != 0; }

  /// An open list takes the keys that close it.
  bool WantsKey(const MSG& message) override {
    return IsOpen() && (message.wParam == VK_RETURN || message.wParam == VK_ESCAPE);
  }

  void Mirror(Aspect aspect) override {
    if (aspect == Aspect::Items) MirrorItems();
    if (aspect == Aspect::Items || aspect == Aspect::Value) MirrorValue();
    if (aspect == Aspect::Place) return MirrorPlace();
    Peer::Mirror(aspect);
  }

  std::wstring ShownEntry(int index) const {
    std::wstring text(static_cast<std::size_t>(Send(CB_GETLBTEXTLEN, static_cast<WPARAM>(index))) + 1, L'\0');
    Send(CB_GETLBTEXT, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.data()));
    text.pop_back();
    return text;
  }

  void Insert(int index) const {
    const std::wstring text = Widened(mControl.List(index));
    Send(CB_INSERTSTRING, static_cast<WPARAM>(index), reinterpret_cast<LPARAM>(text.c_str()));
  }

  void MirrorItems() const {
    const int count = mControl.ListCount();
    int shown = static_cast<int>(Send(CB_GETCOUNT));
    for (; shown > count; --shown) Send(CB_DELETESTRING, static_cast<WPARAM>(shown - 1));
    for (int index = 0; index < shown; ++index) {
      if (ShownEntry(index) == Widened(mControl.List(index))) continue;
      Send(CB_DELETESTRING, static_cast<WPARAM>(index));
      Insert(index);
    }
    for (int index = shown; index < count; ++index) Insert(index);
  }

  void MirrorValue() const {
    const auto wanted = static_cast<LRESULT>(mControl.ListIndex());
    if (!IsEditable()) {
      if (Send(CB_GETCURSEL) != wanted) Send(CB_SETCURSEL, static_cast<WPARAM>(wanted));
      return;
    }
    // Choosing an entry sets the text and the caret, so only a text that differs is set while the user types.
    const std::string text = mControl.Text();
    if (Send(CB_GETCURSEL) != wanted && wanted >= 0) Send(CB_SETCURSEL, static_cast<WPARAM>(wanted));
    if (Narrowed(ShownText()) == text) return;
    ShowText(FocusWindow(), text);
    // A user who is typing continues behind it.
    SendMessageW(FocusWindow(), EM_SETSEL, text.size(), static_cast<LPARAM>(text.size()));
  }

  void MirrorPlace() {
    const RECT place = Owner().Content().PlaceOf(mControl);
    // The height that the platform expects includes that of the open list.
    const int closed = place.bottom - place.top;
    const auto frame = 2 * GetSystemMetrics(SM_CYEDGE) + 2;
    Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), closed - frame);
    const int list = static_cast<int>(Send(CB_GETITEMHEIGHT, 0)) * kShownEntries;
    SetWindowPos(Window(), nullptr, place.left, place.top, place.right - place.left, closed + list,
                 SWP_NOACTIVATE | SWP_NOZORDER);
    // The frame differs between themes, so the height is corrected by the result.
    RECT shown;
    GetWindowRect(Window(), &shown);
    const int missing = closed - static_cast<int>(shown.bottom - shown.top);
    if (missing != 0 && missing > -closed) Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), closed - frame + missing);
  }

  LRESULT OnMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) override {
    // Not all versions of the platform select all on Ctrl+A.
    if (message == WM_CHAR && wParam == 1 && IsEditable()) return SendMessageW(FocusWindow(), EM_SETSEL, 0, -1);
    return Peer::OnMessage(window, message, wParam, lParam);
  }

  void OnCommand(int code) override {
    switch (code) {
      case CBN_EDITCHANGE:
        return ReportText();
      case CBN_SELENDCANCEL:
        mChosen = false;
        return;
      case CBN_SELENDOK:
        mChosen = true;
        return;
      case CBN_CLOSEUP:
        if (!mChosen) return Update(Aspect::Value);
        return ReportChoice();
      case CBN_SELCHANGE:
        // In an open list the user is still looking around.
        if (!IsOpen()) ReportChoice();
        return;
      default:
        return;
    }
  }

  void ReportChoice() {
    mChosen = false;
    const auto index = static_cast<int>(Send(CB_GETCURSEL));
    ComboBox& control = mControl;
    if (index >= 0) Report([&] { control.UserPick(index); });
  }

  std::wstring ShownText() const {
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(FocusWindow())) + 1, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(FocusWindow(), text.data(), static_cast<int>(text.size()))));
    return text;
  }

  void ReportText() {
    const std::wstring text = ShownText();
    ComboBox& control = mControl;
    Report([&] { control.UserText(Narrowed(text)); });
  }

  ComboBox& mControl;
  bool mChosen = false;
};

}  // namespace

std::unique_ptr<Peer> MakePeer(ComboBox& control, Dialog& dialog, const WindowSite& site) {
  const DWORD style = control.Style() == ComboStyle::Editable ? CBS_DROPDOWN | CBS_AUTOHSCROLL : CBS_DROPDOWNLIST;
  return std::make_unique<ComboBoxPeer>(control, dialog,
                                        MakeWindow(L"COMBOBOX", style | WS_VSCROLL | WS_TABSTOP, site));
}

}  // namespace orx::win32
